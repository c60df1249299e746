#include "bench/bare_report.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <stdexcept>
#include <unistd.h>

namespace arbolith::bench {

namespace {

constexpr std::size_t kShortestRow = 11;
constexpr std::array<std::size_t, 26> kWidths = {8, 4, 4, 4, 4, 5, 5, 5, 6, 4, 4, 4, 4,
                                                 4, 5, 5, 5, 7, 7, 7, 5, 5, 5, 7, 7, 7};
constexpr std::array<bool, 26> kWhole = {
    false, true, false, false, false, false, false, false, true, true, true,  false, false,
    false, true, true,  true,  false, false, false, true,  true, true, false, false, false};

void AppendTextRow(std::string& out, std::string_view row, std::string_view plot) {
    out.append(kWidths[0] - plot.size(), ' ').append(plot);
    row.remove_prefix(row.find(' ') + 1);
    for (std::size_t i = 1; i < kWidths.size(); ++i) {
        const auto end = row.find(' ');
        auto value = row.substr(0, end);
        row.remove_prefix(end == std::string_view::npos ? row.size() : end + 1);
        if (kWhole[i]) value = value.substr(0, value.find('.'));
        out += '\t';
        if (value.size() < kWidths[i]) out.append(kWidths[i] - value.size(), ' ');
        out += value;
    }
    out += "\r\n";
}

void AppendHtmlRow(std::string& out, std::string_view row) {
    out += "  <TR class=\"data\">\r\n";
    row.remove_prefix(row.find(' ') + 1);
    for (std::size_t i = 1; i < kWidths.size(); ++i) {
        const auto end = row.find(' ');
        auto value = row.substr(0, end);
        row.remove_prefix(end == std::string_view::npos ? row.size() : end + 1);
        if (kWhole[i]) value = value.substr(0, value.find('.'));
        out += "    <TD class=\"data\">";
        out += value;
        out += "</TD>\r\n";
    }
    out += "  </TR>\r\n";
}

void AppendHead(std::string& out, const ReportTexts& texts, std::size_t sequence,
                std::string_view years) {
    if (texts.html) {
        out.append(texts.tablesBefore[sequence]).append(years).append(texts.tablesBehind[sequence]);
    } else {
        out.append("\r\nPLOT#: ").append(texts.plots[sequence]).append("\tYTBH: ").append(years);
        out.append("\r\n").append(texts.columnHeads).append("\r\n");
    }
}

// A file that is emptied, as a report is, and then written piece by piece. It is emptied by an
// opening of its own: some file systems write an emptied file out at the next close, which takes
// longer.
class BareFile {
public:
    explicit BareFile(const std::string& path) {
        close(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666));
        descriptor_ = open(path.c_str(), O_WRONLY);
        if (descriptor_ == -1) throw std::runtime_error("can't write " + path);
        text.reserve(2 * kPiece);
    }
    ~BareFile() {
        Write();
        close(descriptor_);
    }
    BareFile(const BareFile&) = delete;
    BareFile& operator=(const BareFile&) = delete;

    void WriteWhereLong() {
        if (text.size() >= kPiece) Write();
    }

    std::string text;

private:
    static constexpr std::size_t kPiece = 65536;

    void Write() {
        const auto count = write(descriptor_, text.data(), text.size());
        if (count != static_cast<ssize_t>(text.size())) std::perror("write");
        text.clear();
    }

    int descriptor_ = -1;
};

void AppendBlocks(BareFile& file, std::string_view output, const ReportTexts& texts) {
    auto& out = file.text;
    std::string_view years;
    bool first = true;
    while (!output.empty()) {
        const auto end = output.find("\r\n");
        const auto line = output.substr(0, end);
        output.remove_prefix(end == std::string_view::npos ? output.size() : end + 2);
        if (line.size() < kShortestRow) {
            if (!first) out += texts.tail;
            first = false;
            years = line;
            continue;
        }
        std::size_t sequence = 0;
        std::from_chars(line.data(), line.data() + line.size(), sequence);
        if (!years.empty()) AppendHead(out, texts, sequence, years);
        years = {};
        if (texts.html) {
            AppendHtmlRow(out, line);
        } else {
            AppendTextRow(out, line, texts.plots[sequence]);
        }
        file.WriteWhereLong();
    }
    out += texts.tail;
}

}  // namespace

std::string ReadBytes(const std::string& path) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
    if (file == nullptr) throw std::runtime_error("can't read " + path);
    std::string bytes;
    std::array<char, 65536> buffer;
    while (const auto count = std::fread(buffer.data(), 1, buffer.size(), file))
        bytes.append(buffer.data(), count);
    std::fclose(file);
    return bytes;
}

void CopyBare(const std::vector<std::string>& outputs, const ReportTexts& texts,
              const std::string& report) {
    BareFile file(report);
    file.text = texts.head;
    for (const auto& output : outputs) AppendBlocks(file, ReadBytes(output), texts);
    file.text += texts.end;
}

}  // namespace arbolith::bench
