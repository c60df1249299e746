#include "form_script/properties.h"

#include "form_script/names.h"
#include "forms/chart.h"
#include "forms/controls.h"
#include "forms/grid.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace arbolith {

namespace {

using Indexes = std::vector<int>;

/// One property: its name, how many indexes stand behind it, and how it is read.
struct Property {
    std::string_view name;
    std::size_t indexes;
    Value (*read)(const Control& control, const Indexes& at);
};

template <class T>
Value ToValue(const T& state) {
    if constexpr (std::is_same_v<T, bool>) {
        return state;
    } else if constexpr (std::is_enum_v<T> || std::is_arithmetic_v<T>) {
        return static_cast<double>(state);
    } else {
        return std::string(state);
    }
}

// Reads through a control's own function, whose parameters are the indexes.
template <auto Member>
struct Reader;
template <class Kind, class Result, class... Parameters,
          Result (Kind::*Member)(Parameters...) const>
struct Reader<Member> {
    static constexpr std::size_t kIndexes = sizeof...(Parameters);

    static Value Read(const Control& control, [[maybe_unused]] const Indexes& at) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return ToValue((static_cast<const Kind&>(control).*Member)(at[I]...));
        }
        (std::make_index_sequence<kIndexes>{});
    }
};

template <auto Member>
constexpr Property Told(std::string_view name) {
    return {name, Reader<Member>::kIndexes, &Reader<Member>::Read};
}

template <auto Side>
constexpr Property Measure(std::string_view name) {
    return {name, 0, [](const Control& control, const Indexes&) {
                return Number(control.GetPlace().*Side);
            }};
}

// Of the axis that is the index.
template <auto Field>
constexpr Property OfAxis(std::string_view name) {
    return {name, 1, [](const Control& control, const Indexes& at) {
                return ToValue(static_cast<const Chart&>(control).Axis(at[0]).*Field);
            }};
}

template <auto Field>
constexpr Property OfScale(std::string_view name) {
    return {name, 1, [](const Control& control, const Indexes& at) {
                return ToValue(static_cast<const Chart&>(control).Axis(at[0]).Scale.*Field);
            }};
}

Value BackColorOf(const Control& control, const Indexes&) {
    return ColourValue{control.BackColor()};
}

Value RowOf(const Control& control, const Indexes& at) {
    const auto& list = static_cast<const ListBox&>(control);
    if (at[0] < 0 || at[0] >= list.ListCount()) throw RuntimeError(ErrorNumber::kSubscript);
    return list.List()[static_cast<std::size_t>(at[0])];
}

constexpr Property kOfAll[] = {
    Told<&Control::Caption>("Caption"), Told<&Control::Enabled>("Enabled"),
    Told<&Control::Visible>("Visible"), Told<&Control::Showing>("Showing"),
    Told<&Control::HasFocus>("Focus"),  {"BackColor", 0, BackColorOf},
    Told<&Control::Tag>("Tag"),         Measure<&Place::left>("Left"),
    Measure<&Place::top>("Top"),        Measure<&Place::width>("Width"),
    Measure<&Place::height>("Height"),
};

constexpr Property kOfForms[] = {
    Told<&Form::Caption>("Title"),
    Told<&Form::State>("WindowState"),
    Told<&Form::Pointer>("MousePointer"),
    Told<&Form::Topmost>("Topmost"),
};

constexpr Property kOfOptions[] = {Told<&Option::Value>("Value")};

constexpr Property kOfCheckBoxes[] = {Told<&CheckBox::Value>("Value")};

constexpr Property kOfTextBoxes[] = {
    Told<&TextBox::Text>("Text"),
    Told<&TextBox::MaxLength>("MaxLength"),
    Told<&TextBox::SelStart>("SelStart"),
    Told<&TextBox::SelLength>("SelLength"),
};

constexpr Property kOfLists[] = {
    Told<&ListBox::Text>("Text"),
    Told<&ListBox::ListCount>("ListCount"),
    Told<&ListBox::ListIndex>("ListIndex"),
    {"List", 1, RowOf},
};

constexpr Property kOfMenuItems[] = {Told<&MenuItem::Checked>("Checked")};

constexpr Property kOfTimers[] = {Told<&Timer::Interval>("Interval")};

constexpr Property kOfProgressBars[] = {
    Told<&ProgressBar::Max>("Max"),
    Told<&ProgressBar::Value>("Value"),
};

constexpr Property kOfGrids[] = {
    Told<&Grid::Rows>("Rows"),
    Told<&Grid::Cols>("Cols"),
    Told<&Grid::FixedRows>("FixedRows"),
    Told<&Grid::FixedCols>("FixedCols"),
    Told<&Grid::Row>("Row"),
    Told<&Grid::Col>("Col"),
    Told<&Grid::RowSel>("RowSel"),
    Told<&Grid::ColSel>("ColSel"),
    Told<&Grid::Clip>("Clip"),
    Told<&Grid::Cell>("Cell"),
    Told<&Grid::ColWidth>("ColWidth"),
    Told<&Grid::GetCellAlignment>("CellAlignment"),
};

constexpr Property kOfCharts[] = {
    Told<&Chart::chartType>("chartType"), Told<&Chart::ColumnCount>("ColumnCount"),
    Told<&Chart::RowCount>("RowCount"),   Told<&Chart::ColumnLabel>("ColumnLabel"),
    Told<&Chart::RowLabel>("RowLabel"),   Told<&Chart::Data>("Data"),
    Told<&Chart::Title>("Title"),         Told<&Chart::LegendVisible>("LegendVisible"),
};

// Behind `Axis(n).`.
constexpr Property kOfAxes[] = {
    OfAxis<&ChartAxis::Title>("Title"),
    OfScale<&ToldScale::Auto>("Auto"),
    Told<&Chart::Minimum>("Minimum"),
    Told<&Chart::Maximum>("Maximum"),
    OfScale<&ToldScale::MajorDivision>("MajorDivision"),
    OfScale<&ToldScale::MinorDivision>("MinorDivision"),
    OfAxis<&ChartAxis::MajorPen>("MajorPen"),
    OfAxis<&ChartAxis::MinorPen>("MinorPen"),
};

std::span<const Property> PropertiesOf(ControlKind kind) {
    switch (kind) {
        case ControlKind::kForm:
            return kOfForms;
        case ControlKind::kOption:
            return kOfOptions;
        case ControlKind::kCheckBox:
            return kOfCheckBoxes;
        case ControlKind::kTextBox:
            return kOfTextBoxes;
        case ControlKind::kListBox:
        case ControlKind::kComboBox:
            return kOfLists;
        case ControlKind::kMenuItem:
            return kOfMenuItems;
        case ControlKind::kTimer:
            return kOfTimers;
        case ControlKind::kProgressBar:
            return kOfProgressBars;
        case ControlKind::kGrid:
            return kOfGrids;
        case ControlKind::kChart:
            return kOfCharts;
        case ControlKind::kFrame:
        case ControlKind::kLabel:
        case ControlKind::kButton:
        case ControlKind::kPicture:
            break;
    }
    return {};
}

const Property* FindIn(std::span<const Property> properties, const IndexedWord& word) {
    const auto found = std::find_if(properties.begin(), properties.end(), [&](const Property& p) {
        return p.name == word.word && p.indexes == word.indexes.size();
    });
    return found == properties.end() ? nullptr : &*found;
}

}  // namespace

Value ReadProperty(const Control& control, const std::string& property) {
    const auto point = property.find('.');
    auto word = ReadIndexedWord(property.substr(0, point));
    const Property* found = nullptr;
    if (word && point != std::string::npos) {
        if (control.Kind() == ControlKind::kChart && word->word == "Axis")
            found = FindIn(kOfAxes, {property.substr(point + 1), word->indexes});
    } else if (word) {
        found = FindIn(PropertiesOf(control.Kind()), *word);
        if (found == nullptr) found = FindIn(kOfAll, *word);
    }
    if (found == nullptr) throw NoSuchProperty(control.Name() + " has no property " + property);
    return found->read(control, word->indexes);
}

Value AsKindOf(const Value& state, const std::string& shown) {
    if (std::holds_alternative<double>(state)) {
        if (const auto number = ReadNumber(shown)) return *number;
    }
    if (std::holds_alternative<bool>(state) && (shown == "true" || shown == "false"))
        return shown == "true";
    return shown;
}

}  // namespace arbolith
