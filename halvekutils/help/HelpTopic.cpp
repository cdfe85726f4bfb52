// SPDX-License-Identifier: MIT
#include <halvekutils/base/Pieces.h>
#include <halvekutils/help/HelpTopic.h>

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

namespace halvek {

namespace {

/// The path from the root, without empty, "." and ".." components; nothing lies above the root.
std::u16string FromRoot(std::u16string path) {
    std::ranges::replace(path, u'\\', u'/');
    std::vector<std::u16string_view> components;
    for (const TextIn component : Pieces(path, u'/')) {
        if (component == u"..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != u".") {
            components.push_back(component);
        }
    }
    std::u16string result;
    for (const std::u16string_view component : components) (result += u'/') += component;
    return result;
}

}  // namespace

HelpTopic ParseHelpTopic(TextIn text) {
    std::u16string_view rest = text;
    rest = rest.substr(0, rest.find(u'>'));
    if (rest.starts_with(u"::")) rest.remove_prefix(2);
    const std::size_t hash = rest.find(u'#');
    // Names of a help file's own tables start with that character; names of topics never do.
    const std::u16string_view anchor =
        hash == std::u16string_view::npos ? std::u16string_view() : rest.substr(hash + 1);
    return {FromRoot(std::u16string(rest.substr(0, hash))), std::u16string(anchor)};
}

}  // namespace halvek
