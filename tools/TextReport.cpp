// SPDX-License-Identifier: MIT
#include "Report.h"

#include <algorithm>

namespace check {

namespace {

constexpr std::size_t kMaxWidth = 40;
constexpr std::string_view kGap = "  ";

bool StartsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

std::size_t WidthOf(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(text, StartsCharacter));
}

/// The bytes of the first characters.
std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (StartsCharacter(text[i]) && count-- == 0) return text.substr(0, i);
    }
    return text;
}

/// Appends text that cannot move the cursor: a control character becomes its picture.
void AppendVisible(std::string& out, std::string_view text) {
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code >= 0x20 && code != 0x7F) {
            out += byte;
        } else {
            const int picture = code == 0x7F ? 0x21 : code;
            out.append("\xE2\x90").append(1, static_cast<char>(0x80 + picture));
        }
    }
}

void AppendCell(std::string& out, std::string_view text, std::size_t width) {
    const std::size_t length = WidthOf(text);
    if (length <= width) {
        AppendVisible(out, text);
        out.append(width - length, ' ');
    } else {
        AppendVisible(out, FirstCharacters(text, width - 1));
        out += "\xE2\x80\xA6";  // an ellipsis
    }
}

std::vector<std::size_t> WidthsOf(const Table& table) {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < table.Columns().size(); ++column) {
        std::size_t width = WidthOf(table.Columns()[column].title);
        for (std::size_t row = 0; row < table.Rows() && width < kMaxWidth; ++row) {
            width = std::max(width, WidthOf(table.Cell(row, column)));
        }
        widths.push_back(std::min(width, kMaxWidth));
    }
    return widths;
}

void EndLine(std::string& out) {
    while (out.ends_with(' ')) out.pop_back();
    out += '\n';
}

void AppendNumber(std::string& out, std::size_t number) {
    out += std::to_string(number);
}

}  // namespace

void TextReport::Add(const std::string& file, const Reading& reading) {
    std::string out;
    const Table& table = reading.table;
    if (tables_) {
        const std::vector<std::size_t> widths = WidthsOf(table);
        for (std::size_t column = 0; column < widths.size(); ++column) {
            AppendCell(out.append(column > 0 ? kGap : ""), table.Columns()[column].title,
                       widths[column]);
        }
        EndLine(out);
        for (std::size_t row = 0; row < table.Rows(); ++row) {
            for (std::size_t column = 0; column < widths.size(); ++column) {
                AppendCell(out.append(column > 0 ? kGap : ""), table.Cell(row, column),
                           widths[column]);
            }
            EndLine(out);
            WriteFrom(out);
        }
    }
    for (const halvek::Remark& remark : reading.remarks.All()) {
        out.append(file).append(":");
        AppendNumber(out, remark.record);
        AppendNumber(out.append(":"), remark.field);
        std::string text;
        AppendUtf8(text, remark.text);
        AppendVisible(out.append(": "), text);
        AppendNumber(out.append(" (character "), remark.position + 1);
        out.append(")\n");
        WriteFrom(out);
    }
    WriteFrom(out, 0);
}

}  // namespace check
