// SPDX-License-Identifier: MIT
// Prints the code tables that the practice's server sent, sorted by name, and the user's rights: a
// console program, without windows and without Qt.
// Usage: report CODES-FILE [RIGHTS-FILE]
#include <halvekutils/base/CodePage.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/core/Utils.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

using namespace halvek;

namespace {

/// A text from the server's file; empty, with a line in the error log, when it cannot be read.
std::u16string ServerText(Utils& utils, const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        utils.LogError(path.u16string() + u" cannot be read");
        std::cerr << path.string() << " cannot be read\n";
    }
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    return FromCodePage(bytes);
}

/// A column of a table: the text and blanks, at least one.
std::string Column(std::u16string text, std::size_t width) {
    text.resize(std::max(width, text.size() + 1), u' ');
    return ToUtf8(text);
}

void PrintCodes(const Utils& utils) {
    std::vector<std::shared_ptr<CodeDefinition>> codes;
    std::size_t width = 0;
    for (const auto& code : utils.GetCodesCollection()) {
        codes.push_back(code);
        width = std::max(width, code->CodeDescription().size() + 2);
    }
    std::ranges::stable_sort(codes, {}, [](const auto& code) { return code->CodeDescription(); });
    for (const auto& code : codes) {
        std::cout << Column(code->CodeDescription(), width) << Column(code->CodeKey(), 8)
                  << (code->CodeHasLookup() ? "list" : "-") << '\n';
    }
    std::cout << codes.size() << " code tables\n";
}

void PrintRights(const Utils& utils) {
    for (const auto& item : utils.GetSecurityItemsCollection()) {
        std::cout << Column(item->ItemKey(), 16) << (item->AllowRead() ? 'R' : '-')
                  << (item->AllowAdd() ? 'A' : '-') << (item->AllowModify() ? 'M' : '-')
                  << (item->AllowDelete() ? 'D' : '-') << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::filesystem::path> files(argv + 1, argv + argc);
    if (files.empty()) {
        std::cerr << "Usage: report CODES-FILE [RIGHTS-FILE]\n";
        return 2;
    }
    const auto utils = Utils::Create();
    utils->InitUtils(u"Report.log", u"Report", u"console", false, u"1.0");
    utils->BuildCodesCollection(ServerText(*utils, files[0]));
    PrintCodes(*utils);
    if (files.size() > 1) {
        utils->BuildSecurityCollection(ServerText(*utils, files[1]));
        PrintRights(*utils);
    }
    return utils->GetCodesCollection()->Count() > 0 ? 0 : 1;
}
