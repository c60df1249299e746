#include "qt/chart_layout.h"

#include "qt/texts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace arbolith {

namespace {

constexpr double kMargin = 8;
// Between the plot and its numbers, which the axes' ticks take part of.
constexpr double kTickRoom = 8;
constexpr double kGap = 6;
constexpr int kAxisTitlePoints = 10;
constexpr int kNumberPoints = 8;
constexpr double kLineSample = 32;
constexpr double kBarSample = 12;
// The plot's share of the sheet, below which something else has to go.
constexpr double kSmallestShare = 1.0 / 3;
// Room of a number in its own height or width, before the next one begins.
constexpr double kNumberSpacing = 1.3;
constexpr double kQuarter = 90;

// What there is room for.
enum class Contents { kAll, kNoLegend, kNoTitles };

QFont FontOf(const ChartFont& told, double factor) {
    QFont font(ToQString(told.Name));
    font.setPointSizeF(told.Size * factor);
    return font;
}

double Widest(const QStringList& texts, const QFontMetricsF& metrics) {
    double widest = 0;
    for (const QString& text : texts) widest = std::max(widest, metrics.horizontalAdvance(text));
    return widest;
}

// Every how many of the numbers there is room for one: 1, 2, 5, 10, ...
int Thinning(double spacing, double needed) {
    for (int power = 1; power < 1'000'000; power *= 10)
        for (const int step : {power, 2 * power, 5 * power})
            if (spacing * step >= needed) return step;
    return 1'000'000;
}

// As many words in each line as fit.
QStringList Filled(const QString& text, const QFontMetricsF& metrics, double width) {
    QStringList lines;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts)) {
        const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
        if (!lines.isEmpty() && metrics.horizontalAdvance(longer) <= width) {
            lines.last() = longer;
        } else {
            lines << word;
        }
    }
    return lines;
}

class Layouter {
public:
    Layouter(const Plot& plot, QSizeF sheet, double factor, Contents contents)
        : plot_(plot),
          sheet_(sheet),
          contents_(contents),
          title_(FontOf(plot.titleFont, factor)),
          axisTitle_(FontOf({"Arial", kAxisTitlePoints, 0}, factor)),
          number_(FontOf({"Arial", kNumberPoints, 0}, factor)),
          legend_(FontOf(plot.legendFont, factor)) {}

    ChartLayout Result() {
        top_ = kMargin;
        PutTitle();
        PutLegend();
        PlacePlot();
        PutVerticalNumbers();
        PutHorizontalTexts();
        PutAxisTitles();
        return std::move(layout_);
    }

private:
    bool HasTitles() const { return contents_ != Contents::kNoTitles; }
    bool HasLegend() const { return contents_ == Contents::kAll && plot_.hasLegend; }

    void PutLines(const QStringList& lines, const QFont& font, QPointF middleOfFirst, QPointF step,
                  double angle = 0) {
        for (qsizetype i = 0; i < lines.size(); ++i)
            layout_.texts.push_back(
                {lines[i], font, middleOfFirst + static_cast<double>(i) * step, angle});
    }

    void PutTitle() {
        if (!HasTitles() || plot_.title.isEmpty()) return;
        const double line = QFontMetricsF(title_).height();
        const auto lines = Wrapped(plot_.title, title_, sheet_.width() - 2 * kMargin);
        PutLines(lines, title_, {sheet_.width() / 2, top_ + line / 2}, {0, line});
        top_ += line * static_cast<double>(lines.size()) + kGap;
    }

    // At the lower right corner of the sheet, in as many columns as its height asks for.
    void PutLegend() {
        right_ = sheet_.width() - kMargin;
        const int count = static_cast<int>(plot_.series.size());
        if (!HasLegend() || count == 0) return;
        const double line = std::ceil(QFontMetricsF(legend_).height() * 1.1);
        const double height = sheet_.height() - kMargin - top_;
        const int most = std::max(1, static_cast<int>(height / line));
        const int columns = (count + most - 1) / most;
        const int rows = (count + columns - 1) / columns;
        layout_.samples.resize(static_cast<std::size_t>(count));
        for (int column = columns - 1; column >= 0; --column)
            PutLegendColumn(column * rows, std::min(count, (column + 1) * rows), rows, line);
    }

    void PutLegendColumn(int first, int behind, int rows, double line) {
        const QFontMetricsF metrics(legend_);
        const double sample = plot_.hasBars ? kBarSample : kLineSample;
        QStringList names;
        for (int i = first; i < behind; ++i)
            names << plot_.series[static_cast<std::size_t>(i)].name;
        const double width = Widest(names, metrics);
        for (int i = first; i < behind; ++i) {
            const double y = sheet_.height() - kMargin - line * (rows - (i - first) - 0.5);
            const QString& name = names[i - first];
            const double x = right_ - width + metrics.horizontalAdvance(name) / 2;
            layout_.texts.push_back({name, legend_, {x, y}, 0});
            layout_.samples[static_cast<std::size_t>(i)] =
                QRectF(right_ - width - kGap - sample, y - line / 2, sample, line);
        }
        right_ -= width + kGap + sample + 2 * kGap;
    }

    void PlacePlot() {
        const QFontMetricsF numbers(number_);
        const QFontMetricsF titles(axisTitle_);
        const QStringList vertical = TickTexts(plot_.y);
        horizontal_ = plot_.hasBars ? plot_.rowLabels : TickTexts(plot_.x);
        yTitle_ = HasTitles() ? Wrapped(plot_.yTitle, axisTitle_, sheet_.height() - 2 * kMargin)
                              : QStringList();
        left_ = kMargin + titles.height() * static_cast<double>(yTitle_.size());
        if (!yTitle_.isEmpty()) left_ += kGap;
        left_ += Widest(vertical, numbers) + kTickRoom;
        // The last number below the plot hangs over its end by one half.
        if (!plot_.hasBars) right_ -= numbers.horizontalAdvance(horizontal_.last()) / 2;
        right_ = std::max(right_, left_ + 1);
        xTitle_ = HasTitles() ? Wrapped(plot_.xTitle, axisTitle_, right_ - left_) : QStringList();
        TurnTexts();
        const double under = isTurned_ ? Widest(horizontal_, numbers) : numbers.height();
        bottom_ = sheet_.height() - kMargin - kTickRoom - under;
        if (!xTitle_.isEmpty())
            bottom_ -= kGap / 2 + titles.height() * static_cast<double>(xTitle_.size());
        // Half of the uppermost number stands above the plot.
        if (contents_ == Contents::kNoTitles || plot_.title.isEmpty()) top_ += numbers.height() / 2;
        Sharpen();
        layout_.plot = QRectF(left_, top_, right_ - left_, bottom_ - top_);
    }

    // Puts the edges of the plot into the middle of pixels, where thin lines are sharp.
    void Sharpen() {
        for (double* edge : {&left_, &top_, &right_, &bottom_}) *edge = std::floor(*edge) + 0.5;
        right_ = std::max(right_, left_ + 1);
        bottom_ = std::max(bottom_, top_ + 1);
    }

    // Labels of bars that don't fit side by side are turned where all of them fit so, and thinned
    // where not even that helps.
    void TurnTexts() {
        const QFontMetricsF metrics(number_);
        const auto count = static_cast<double>(horizontal_.size());
        const double spacing = (right_ - left_) / std::max(1.0, count);
        isTurned_ = plot_.hasBars && Widest(horizontal_, metrics) * kNumberSpacing > spacing &&
                    metrics.height() <= spacing;
    }

    void PutVerticalNumbers() {
        const QFontMetricsF metrics(number_);
        const QStringList texts = TickTexts(plot_.y);
        const double spacing = layout_.plot.height() / plot_.y.majorDivisions;
        const int step = Thinning(spacing, metrics.height());
        for (int i = 0; i < texts.size(); i += step) {
            const double x = left_ - kTickRoom - metrics.horizontalAdvance(texts[i]) / 2;
            layout_.texts.push_back({texts[i], number_, {x, bottom_ - i * spacing}, 0});
        }
    }

    void PutHorizontalTexts() {
        const QFontMetricsF metrics(number_);
        const int parts = plot_.x.majorDivisions;
        const double spacing = layout_.plot.width() / parts;
        const double widest = Widest(horizontal_, metrics);
        const double needed = isTurned_ ? metrics.height() : widest * kNumberSpacing;
        const int step = Thinning(spacing, needed);
        const double first = left_ + (plot_.hasBars ? spacing / 2 : 0);
        for (int i = 0; i < horizontal_.size(); i += step) {
            const double length = metrics.horizontalAdvance(horizontal_[i]);
            const double y = bottom_ + kTickRoom + (isTurned_ ? length / 2 : metrics.height() / 2);
            layout_.texts.push_back(
                {horizontal_[i], number_, {first + i * spacing, y}, isTurned_ ? -kQuarter : 0});
        }
    }

    void PutAxisTitles() {
        const QFontMetricsF metrics(axisTitle_);
        const double line = metrics.height();
        const double half = Widest(yTitle_, metrics) / 2;
        // Beside the middle of the plot, as far as the sheet goes.
        const double y = std::max(
            half + kMargin, std::min(sheet_.height() - kMargin - half, layout_.plot.center().y()));
        PutLines(yTitle_, axisTitle_, {kMargin + line / 2, y}, {line, 0}, -kQuarter);
        const double last = static_cast<double>(xTitle_.size()) - 0.5;
        PutLines(xTitle_, axisTitle_,
                 {layout_.plot.center().x(), sheet_.height() - kMargin - last * line}, {0, line});
    }

    const Plot& plot_;
    QSizeF sheet_;
    Contents contents_;
    QFont title_;
    QFont axisTitle_;
    QFont number_;
    QFont legend_;
    ChartLayout layout_;
    QStringList horizontal_;
    QStringList xTitle_;
    QStringList yTitle_;
    bool isTurned_ = false;
    double left_ = 0;
    double top_ = 0;
    double right_ = 0;
    double bottom_ = 0;
};

}  // namespace

QStringList Wrapped(const QString& text, const QFont& font, double width) {
    const QFontMetricsF metrics(font);
    QStringList lines = Filled(text, metrics, width);
    // Lines that are full but for the last need at least half of the width when they are even.
    for (int percent = 95; lines.size() > 1 && percent >= 50; percent -= 5) {
        const QStringList narrower = Filled(text, metrics, width * percent / 100);
        if (narrower.size() > lines.size()) break;
        lines = narrower;
    }
    return lines;
}

ChartLayout LayOut(const Plot& plot, QSizeF sheet, double textFactor) {
    ChartLayout layout;
    for (const Contents contents : {Contents::kAll, Contents::kNoLegend, Contents::kNoTitles}) {
        layout = Layouter(plot, sheet, textFactor, contents).Result();
        if (layout.plot.width() >= sheet.width() * kSmallestShare &&
            layout.plot.height() >= sheet.height() * kSmallestShare)
            break;
    }
    return layout;
}

}  // namespace arbolith
