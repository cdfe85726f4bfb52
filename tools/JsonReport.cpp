// SPDX-License-Identifier: MIT
#include "Report.h"

namespace check {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

std::string_view NameOf(halvek::RemarkKind kind) {
    switch (kind) {
        case halvek::RemarkKind::Ignored:
            return "ignored";
        case halvek::RemarkKind::Defaulted:
            return "defaulted";
        case halvek::RemarkKind::Doubled:
            return "doubled";
    }
    return {};
}

void AppendString(std::string& out, std::string_view text) {
    out += '"';
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            out.append(1, '\\').append(1, byte);
        } else if (code < 0x20) {
            out.append("\\u00").append(1, kHexDigits[code >> 4]).append(1, kHexDigits[code & 15]);
        } else {
            out += byte;
        }
    }
    out += '"';
}

void AppendRow(std::string& out, const Table& table, std::size_t row) {
    out += row == 0 ? "\n      {" : ",\n      {";
    for (std::size_t i = 0; i < table.Columns().size(); ++i) {
        const Table::Column& column = table.Columns()[i];
        if (i > 0) out += ", ";
        AppendString(out, column.title);
        out += ": ";
        if (column.kind == Table::Kind::Flag) {
            out += table.Cell(row, i);
        } else {
            AppendString(out, table.Cell(row, i));
        }
    }
    out += '}';
}

void AppendRemark(std::string& out, const halvek::Remark& remark) {
    std::string text;
    AppendUtf8(text, remark.text);
    out.append("{\"record\": ").append(std::to_string(remark.record));
    out.append(", \"field\": ").append(std::to_string(remark.field));
    out.append(", \"character\": ").append(std::to_string(remark.position + 1));
    out.append(", \"kind\": \"").append(NameOf(remark.kind)).append("\", \"remark\": ");
    AppendString(out, text);
    out += '}';
}

}  // namespace

void JsonReport::Add(const std::string& file, const Reading& reading) {
    std::string out = first_ ? "[\n  {\"file\": " : ",\n  {\"file\": ";
    first_ = false;
    AppendString(out, file);
    out += ", \"understood\": [";
    for (std::size_t row = 0; row < reading.table.Rows(); ++row) {
        AppendRow(out, reading.table, row);
        WriteFrom(out);
    }
    out += "],\n   \"remarks\": [";
    const char* separator = "\n      ";
    for (const halvek::Remark& remark : reading.remarks.All()) {
        AppendRemark(out.append(separator), remark);
        separator = ",\n      ";
        WriteFrom(out);
    }
    out += "]}";
    WriteFrom(out, 0);
}

void JsonReport::End() {
    std::string out = first_ ? "[]\n" : "\n]\n";
    WriteFrom(out, 0);
}

}  // namespace check
