// The grid as a table. Mouse and keys set the state's selection, an anchor cell and a moving end;
// what is highlighted only follows it.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/grid_cells.h"
#include "qt/grid_model.h"
#include "qt/views.h"

#include <QBasicTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTimerEvent>

#include <algorithm>
#include <vector>

namespace arbolith {

namespace {

// Width of a column that was never given one, in twips.
constexpr int kColumnWidth = 960;
// Height of the header row while it holds no text, in pixels.
constexpr int kThinHeader = 6;
// What a row has beyond its line of text, in pixels.
constexpr int kRowPadding = 6;
// So many rows tell how wide the texts of a column are.
constexpr int kMeasuredRows = 200;
// Milliseconds between steps while the mouse is held outside the cells.
constexpr int kScrollStep = 50;

struct CellPlace {
    int row = 0;
    int col = 0;
};

class GridView final : public QTableView, public View {
public:
    GridView(Grid& grid, FormWindow& window);

    void Refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void MeasureTexts();
    void RefreshSizes();
    void RefreshSelection();
    CellPlace CellAt(QPoint position) const;
    CellPlace Inside(CellPlace cell) const;
    bool HasCells() const;
    bool MoveByKey(const QKeyEvent& event);
    void SelectFrom(CellPlace anchor, CellPlace end);
    void MoveEnd(CellPlace end);
    void FollowMouse();

    Grid& grid_;
    GridModel* model_;
    QBasicTimer scrolling_;
    QPoint mouse_;
    int shownRevision_ = -1;
    std::vector<int> shownWidths_;
    // What the texts of each column need.
    std::vector<int> textWidths_;
    QFont measuredFont_;
    int measuredRevision_ = -1;
};

GridView::GridView(Grid& grid, FormWindow& window)
    : QTableView(window.InsideOf(grid.Parent())),
      View(grid, window, this),
      grid_(grid),
      model_(new GridModel(grid, window, this)) {
    // The state selects, never the view.
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setItemDelegate(new GridCells(*model_, this));
    setModel(model_);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setHighlightSections(false);
        header->setSectionsClickable(true);
        header->setMinimumSectionSize(1);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    horizontalHeader()->setResizeContentsPrecision(kMeasuredRows);
    connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
        const int col = section + grid_.FixedCols();
        if (HasCells()) SelectFrom({grid_.FixedRows(), col}, {grid_.Rows() - 1, col});
    });
    connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int section) {
        const int row = section + grid_.FixedRows();
        if (HasCells()) SelectFrom({row, grid_.FixedCols()}, {row, grid_.Cols() - 1});
    });
}

void GridView::Refresh() {
    if (shownRevision_ != grid_.Revision()) {
        shownRevision_ = grid_.Revision();
        if (model_->Update()) {
            shownWidths_.clear();
            scrollToTop();
            horizontalScrollBar()->setValue(0);
        }
    }
    if (measuredFont_ != font() || measuredRevision_ != shownRevision_) MeasureTexts();
    RefreshSizes();
    RefreshSelection();
    RefreshWidget();
}

void GridView::MeasureTexts() {
    measuredFont_ = font();
    measuredRevision_ = shownRevision_;
    textWidths_.assign(static_cast<std::size_t>(grid_.Cols()), 0);
    for (int col = grid_.FixedCols(); col < grid_.Cols(); ++col)
        textWidths_[static_cast<std::size_t>(col)] = sizeHintForColumn(col - grid_.FixedCols());
}

// A column is as wide as it is told, but no narrower than its texts: they are there to be read, and
// the table scrolls. One that the person has drawn wider stays so until the state gives it another
// width.
void GridView::RefreshSizes() {
    const auto widthOf = [this](int col) {
        const int width = grid_.ColWidth(col);
        const int told = Window().GetScale().Pixels(width < 0 ? kColumnWidth : width);
        return std::max(told, textWidths_[static_cast<std::size_t>(col)]);
    };
    shownWidths_.resize(static_cast<std::size_t>(grid_.Cols()), -1);
    for (int col = 0; col < grid_.Cols(); ++col) {
        auto& shown = shownWidths_[static_cast<std::size_t>(col)];
        if (shown == widthOf(col)) continue;
        shown = widthOf(col);
        if (col >= grid_.FixedCols()) setColumnWidth(col - grid_.FixedCols(), shown);
    }
    verticalHeader()->setVisible(grid_.FixedCols() > 0);
    if (grid_.FixedCols() > 0) verticalHeader()->setFixedWidth(shownWidths_.front());
    const int rowHeight = fontMetrics().height() + kRowPadding;
    if (verticalHeader()->defaultSectionSize() != rowHeight)
        verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setVisible(grid_.FixedRows() > 0);
    horizontalHeader()->setFixedHeight(model_->HasHeadingTexts() ? rowHeight : kThinHeader);
}

void GridView::RefreshSelection() {
    const auto [top, bottom] = std::minmax({grid_.Row(), grid_.RowSel()});
    const auto [left, right] = std::minmax({grid_.Col(), grid_.ColSel()});
    const QItemSelection wanted(model_->IndexOf(top, left), model_->IndexOf(bottom, right));
    selectionModel()->setCurrentIndex(model_->IndexOf(grid_.Row(), grid_.Col()),
                                      QItemSelectionModel::NoUpdate);
    if (selectionModel()->selection() != wanted)
        selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
}

bool GridView::HasCells() const {
    return grid_.Rows() > grid_.FixedRows() && grid_.Cols() > grid_.FixedCols();
}

CellPlace GridView::Inside(CellPlace cell) const {
    return {std::clamp(cell.row, grid_.FixedRows(), grid_.Rows() - 1),
            std::clamp(cell.col, grid_.FixedCols(), grid_.Cols() - 1)};
}

// The nearest cell to a place in or around the cells.
CellPlace GridView::CellAt(QPoint position) const {
    const int x = std::clamp(position.x(), 0, std::max(0, viewport()->width() - 1));
    const int y = std::clamp(position.y(), 0, std::max(0, viewport()->height() - 1));
    const int row = rowAt(y);
    const int col = columnAt(x);
    return Inside({row == -1 ? grid_.Rows() : row + grid_.FixedRows(),
                   col == -1 ? grid_.Cols() : col + grid_.FixedCols()});
}

void GridView::SelectFrom(CellPlace anchor, CellPlace end) {
    Perform([&](UserActions&) {
        grid_.Owner().GetApplication().Enter([&] {
            grid_.SetRow(anchor.row);
            grid_.SetCol(anchor.col);
            grid_.SetRowSel(end.row);
            grid_.SetColSel(end.col);
        });
    });
}

void GridView::MoveEnd(CellPlace end) {
    SelectFrom({grid_.Row(), grid_.Col()}, end);
}

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (hasFocus()) PaintFocusRing(*viewport(), viewport()->rect());
}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !HasCells()) return;
    const CellPlace cell = CellAt(event->pos());
    if (event->modifiers() & Qt::ShiftModifier) {
        MoveEnd(cell);
    } else if (indexAt(event->pos()).isValid()) {
        SelectFrom(cell, cell);
    }
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton) || !HasCells()) return;
    mouse_ = event->pos();
    if (viewport()->rect().contains(mouse_)) {
        scrolling_.stop();
        FollowMouse();
    } else if (!scrolling_.isActive()) {
        scrolling_.start(kScrollStep, this);
    }
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    scrolling_.stop();
    if (event->button() != Qt::LeftButton) return;
    Perform([this](UserActions& actions) { actions.Click(grid_); });
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    Perform([this](UserActions& actions) { actions.DoubleClick(grid_); });
}

void GridView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != scrolling_.timerId()) return QTableView::timerEvent(event);
    const QRect cells = viewport()->rect();
    const auto step = [](QScrollBar* bar, int at, int first, int last) {
        if (at < first) bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
        if (at > last) bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    };
    step(horizontalScrollBar(), mouse_.x(), cells.left(), cells.right());
    step(verticalScrollBar(), mouse_.y(), cells.top(), cells.bottom());
    if (HasCells()) FollowMouse();
}

void GridView::FollowMouse() {
    const CellPlace cell = CellAt(mouse_);
    if (cell.row != grid_.RowSel() || cell.col != grid_.ColSel()) MoveEnd(cell);
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (!MoveByKey(*event) && !PassKey(*event)) event->ignore();
}

// With Shift the moving end goes, without it the current cell.
bool GridView::MoveByKey(const QKeyEvent& event) {
    if (!HasCells()) return false;
    const bool extends = event.modifiers() & Qt::ShiftModifier;
    const bool far = event.modifiers() & Qt::ControlModifier;
    const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
    const int last = grid_.Rows() - 1;
    CellPlace to =
        extends ? CellPlace{grid_.RowSel(), grid_.ColSel()} : CellPlace{grid_.Row(), grid_.Col()};
    switch (event.key()) {
        case Qt::Key_Up:
            to.row = far ? 0 : to.row - 1;
            break;
        case Qt::Key_Down:
            to.row = far ? last : to.row + 1;
            break;
        case Qt::Key_Left:
            to.col = far ? 0 : to.col - 1;
            break;
        case Qt::Key_Right:
            to.col = far ? grid_.Cols() - 1 : to.col + 1;
            break;
        case Qt::Key_PageUp:
            to.row -= page;
            break;
        case Qt::Key_PageDown:
            to.row = std::min(last, to.row) + page;
            break;
        case Qt::Key_Home:
            to = {far ? 0 : to.row, 0};
            break;
        case Qt::Key_End:
            to = {far ? last : to.row, grid_.Cols() - 1};
            break;
        default:
            return false;
    }
    to = Inside(to);
    SelectFrom(extends ? CellPlace{grid_.Row(), grid_.Col()} : to, to);
    scrollTo(model_->IndexOf(to.row, to.col));
    return true;
}

}  // namespace

View* MakeGridView(Grid& grid, FormWindow& window) {
    return new GridView(grid, window);
}

}  // namespace arbolith
