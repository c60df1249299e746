// A list of rows, one of which may be selected.
#include "qt/focus_ring.h"
#include "qt/form_window.h"
#include "qt/text_columns.h"
#include "qt/texts.h"
#include "qt/views.h"

#include <QAbstractListModel>
#include <QListView>

#include <algorithm>

namespace arbolith {

namespace {

// The told fonts are smaller in the same size than those of a desktop.
constexpr double kGrowth = 1.15;

// Reads the rows from the list itself.
class RowsModel final : public QAbstractListModel {
public:
    RowsModel(const ListBox& list, const FormWindow& window, QObject* parent)
        : QAbstractListModel(parent), list_(list), window_(window) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : count_;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (window_.IsGone() || index.row() >= list_.ListCount()) return {};
        const QString row = ToQString(list_.List()[static_cast<std::size_t>(index.row())]);
        if (role == Qt::AccessibleTextRole) return Spoken(row);
        return role == Qt::DisplayRole ? row : QVariant();
    }

    // Rows are added and removed at the end only and then all shown anew: the view keeps its place.
    void Update() {
        const int count = list_.ListCount();
        if (count > count_) {
            beginInsertRows({}, count_, count - 1);
            count_ = count;
            endInsertRows();
        } else if (count < count_) {
            beginRemoveRows({}, count, count_ - 1);
            count_ = count;
            endRemoveRows();
        }
        if (count_ > 0) emit dataChanged(index(0), index(count_ - 1), {Qt::DisplayRole});
    }

private:
    // What stands in columns is told one by one.
    QString Spoken(const QString& row) const {
        const auto& columns = list_.GetLook().columns;
        if (columns.empty()) return row;
        QStringList pieces;
        for (const auto& piece : CutIntoColumns(row, columns)) pieces << piece.text;
        return pieces.join(QStringLiteral(", "));
    }

    const ListBox& list_;
    const FormWindow& window_;
    int count_ = 0;
};

class ListBoxView final : public QListView, public View {
public:
    ListBoxView(ListBox& list, FormWindow& window)
        : QListView(window.InsideOf(list.Parent())),
          View(list, window, this),
          list_(list),
          rows_(new RowsModel(list, window, this)) {
        setUniformItemSizes(true);
        setEditTriggers(NoEditTriggers);
        setModel(rows_);
        // Assistive technology selects a row without a click.
        connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
            const auto selected = selectionModel()->selectedIndexes();
            if (selected.isEmpty() || selected.constFirst().row() == list_.ListIndex()) return;
            if (Perform([&](UserActions& actions) {
                    actions.SelectRow(list_, selected.constFirst().row());
                }))
                ShowState();
        });
        const auto& columns = list.GetLook().columns;
        if (!columns.empty()) setItemDelegate(new RowsInColumns(columns, *this));
    }

    void Refresh() override {
        RefreshFont();
        rows_->Update();
        const QModelIndex wanted = rows_->index(list_.ListIndex());
        if (currentIndex() != wanted) {
            selectionModel()->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
            if (wanted.isValid()) scrollTo(wanted);
        }
        RefreshWidget();
        RefreshBackColor(QPalette::Base, QPalette::Text);
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        QListView::paintEvent(event);
        if (hasFocus()) PaintFocusRing(*viewport(), viewport()->rect());
    }

    void mousePressEvent(QMouseEvent* event) override {
        const QModelIndex pressed = indexAt(event->pos());
        if (event->button() == Qt::LeftButton && pressed.isValid()) Select(pressed.row());
    }
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent*) override {}
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
            Perform([this](UserActions& actions) { actions.DoubleClick(list_); });
    }

    // Getting the focus would make the first row the current one.
    void focusInEvent(QFocusEvent* event) override {
        QListView::focusInEvent(event);
        ShowState();
    }

    void keyPressEvent(QKeyEvent* event) override {
        const int page = std::max(1, viewport()->height() / std::max(1, sizeHintForRow(0)) - 1);
        switch (event->key()) {
            case Qt::Key_PageUp:
                return Select(std::max(0, list_.ListIndex()) - page);
            case Qt::Key_PageDown:
                return Select(std::max(0, list_.ListIndex()) + page);
            case Qt::Key_Home:
                return Select(0);
            case Qt::Key_End:
                return Select(list_.ListCount() - 1);
            default:
                if (!PassKey(*event)) event->ignore();
        }
    }

private:
    void RefreshFont() {
        if (list_.GetLook().font.empty()) return;
        QFont told = Window().TextFont();
        told.setFamily(ToQString(list_.GetLook().font));
        told.setPointSizeF(told.pointSizeF() * kGrowth);
        if (font() != told) setFont(told);
    }

    void Select(int row) {
        if (list_.ListCount() == 0) return;
        const int inside = std::clamp(row, 0, list_.ListCount() - 1);
        Perform([&](UserActions& actions) { actions.SelectRow(list_, inside); });
    }

    ListBox& list_;
    RowsModel* rows_;
};

}  // namespace

View* MakeListBoxView(ListBox& list, FormWindow& window) {
    return new ListBoxView(list, window);
}

}  // namespace arbolith
