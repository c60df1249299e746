#include "generator/html.h"

#include "platform/code_page.h"

#include <array>
#include <utility>

namespace arbolith::help {

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> kEntities = {{
    {"&lt;", "<"},
    {"&gt;", ">"},
    {"&quot;", "\""},
    {"&nbsp;", " "},
    {"&amp;", "&"},
}};

std::string WithoutTags(std::string_view html) {
    std::string text;
    bool inTag = false;
    for (const char c : html) {
        if (c == '<') inTag = true;
        if (!inTag) text += c;
        if (c == '>') inTag = false;
    }
    return text;
}

void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

bool IsSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

std::string RunTogether(std::string_view text) {
    std::string result;
    bool spaceBefore = false;
    for (const char c : text) {
        if (IsSpace(c)) {
            spaceBefore = true;
            continue;
        }
        if (spaceBefore && !result.empty()) result += ' ';
        spaceBefore = false;
        result += c;
    }
    return result;
}

std::string RowOf(const std::vector<std::string>& cells, std::string_view tag) {
    std::string row = "<tr>";
    for (const auto& cell : cells)
        row.append("<").append(tag).append(">").append(cell).append("</").append(tag).append(">");
    return row + "</tr>\n";
}

}  // namespace

std::string Escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
            case '<':
                html += "&lt;";
                break;
            case '>':
                html += "&gt;";
                break;
            case '"':
                html += "&quot;";
                break;
            case '&':
                html += "&amp;";
                break;
            default:
                html += c;
        }
    }
    return html;
}

std::string EscapedProgramText(std::string_view text) {
    return Escaped(ToUtf8(text));
}

std::string PlainText(std::string_view html) {
    auto text = WithoutTags(html);
    for (const auto& [entity, mark] : kEntities) ReplaceAll(text, entity, mark);
    return RunTogether(text);
}

std::string Table::Html(std::string_view kind) const {
    std::string html = "<table";
    if (!kind.empty()) html.append(" class=\"").append(kind).append("\"");
    html += ">\n" + RowOf(headings_, "th");
    for (const auto& row : rows_) html += RowOf(row, "td");
    return html + "</table>\n";
}

}  // namespace arbolith::help
