// SPDX-License-Identifier: MIT
#pragma once

#include "fuzz/FuzzTarget.h"

namespace halvek {

/// The rules of a selection dialog written plainly: every look-up is a scan, every text is built
/// from scratch.
struct SelectGridModel {
    std::vector<std::u16string> codes;  ///< of the entries that are shown, without blanks around
    std::vector<bool> ticks;
    std::u16string box;
    std::u16string choice;
    int told = 0;  ///< how many messages there were
    bool enabled = true;
    bool changed = false;

    void Prepare(const std::u16string& selected, const std::u16string& typed) {
        for (const std::u16string& code : CodesIn(selected)) told += Tick(code) ? 0 : 1;
        box = choice;
        if (typed.empty()) return;
        box += (box.empty() ? u"" : u",") + typed;
    }

    void Toggle(std::size_t index) {
        const bool on = !ticks[index];
        changed = true;
        std::vector<std::u16string> chosen;
        if (index == 0) {
            ticks.assign(ticks.size(), on);
            if (on) chosen = codes;
            std::erase(chosen, u"");
        } else {
            chosen = CodesIn(box);
            if (!on) std::erase(chosen, codes[index]);
            if (on) chosen.push_back(codes[index]);
        }
        choice.clear();
        for (const auto& code : chosen) Append(code);
        if (choice.empty() && !box.empty()) ticks.assign(ticks.size(), false);
        if (index != 0) ticks[index] = on;
        box = choice;
    }

    void Edit(const std::u16string& text) {
        if (text.empty() && !box.empty()) {
            changed = true;
            Clear();
        }
        box = text;
    }

    bool Check() {
        const std::vector<bool> before = ticks;
        const bool accepted = Mark();
        changed = changed || ticks != before;
        if (!accepted) ++told;
        return accepted;
    }

    bool IsShownTicked(std::size_t index) const {
        return ticks[index] && (index == 0 || !codes[index].empty());
    }

  private:
    static std::vector<std::u16string> CodesIn(const std::u16string& text) {
        auto pieces = Cut(text, u',');
        for (std::u16string& piece : pieces) piece = Trimmed(piece);
        std::erase(pieces, u"");
        return pieces;
    }

    static bool IsUnwanted(char16_t c) {
        return (c < 32 && c != u'\n' && c != u'\r') || c >= 127 ||
               std::u16string_view(u":^`|").find(c) != std::u16string_view::npos;
    }

    void Append(const std::u16string& code) { choice += (choice.empty() ? u"" : u",") + code; }

    void Clear() {
        ticks.assign(ticks.size(), false);
        choice.clear();
    }

    /// False for a code that no entry has. A ticked entry stays ticked.
    bool Tick(const std::u16string& code) {
        const auto found = std::find(codes.begin(), codes.end(), code);
        if (found == codes.end()) return false;
        const auto index = static_cast<std::size_t>(found - codes.begin());
        if (!ticks[index]) Append(code);
        ticks[index] = true;
        return true;
    }

    bool Mark() {
        if (!Trimmed(box).empty() && enabled) {
            const bool hasGap = box.starts_with(u',') || box.find(u",,") != box.npos;
            if (hasGap || std::any_of(box.begin(), box.end(), IsUnwanted)) return false;
        }
        Clear();
        std::vector<std::u16string> typed = CodesIn(box);
        for (const std::u16string& code : typed) {
            if (!Tick(code)) return false;
        }
        std::sort(typed.begin(), typed.end());
        return std::adjacent_find(typed.begin(), typed.end()) == typed.end();
    }
};

}  // namespace halvek
