// SPDX-License-Identifier: MIT
#include <halvekutils/core/ComponentState.h>
#include <halvekutils/core/NativePath.h>
#include <halvekutils/core/Platform.h>
#include <halvekutils/core/UtilsPrivate.h>
#include <halvekutils/platform/Guard.h>

#include <filesystem>
#include <string>

namespace halvek {

namespace {

/// Opens help in the given file, or else in the stored one; false when there is no such file, which
/// the user is told. What goes wrong after that is logged and does not change the result.
template <class Open>
bool OpenHelp(Utils& utils, const char16_t* faultPrefix, TextIn location, const Open& open) {
    const auto self = utils.shared_from_this();
    const std::u16string file = location.empty() ? State().helpFilePath : location.Str();
    const auto exists = [&] {
        return !file.empty() && State().machine->StateOf(NativePath(file)).exists;
    };
    const bool found = Guarded(OnFault::Quiet, faultPrefix, LogOf(utils), false, exists);
    Guarded(OnFault::Quiet, faultPrefix, LogOf(utils), [&] {
        Platform& platform = Platform::Installed();
        if (found) {
            open(platform, NativePath(file));
        } else {
            platform.ShowStockMessage(u"File " + file + u" is not found.", StockIcon::Critical,
                                      utils.AppName());
        }
    });
    return found;
}

}  // namespace

void Utils::InitHelp(TextIn FilePath) {
    State().helpFilePath = FilePath.Str();
}
std::u16string Utils::HelpFilePath() const {
    return State().helpFilePath;
}

bool Utils::ShowHelp(std::int32_t /*hwnd*/, std::int32_t ContextID, TextIn HelpFileLocation) {
    return OpenHelp(*this, u"Error in Utils.ShowHelp ", HelpFileLocation,
                    [&](Platform& platform, const std::filesystem::path& file) {
                        platform.ShowHelpContext(file, ContextID);
                    });
}

bool Utils::ShowHelpByTopic(std::int32_t /*hwnd*/, TextIn TopicPath, TextIn HelpFileLocation) {
    const std::u16string topic = TopicPath.Str();
    return OpenHelp(*this, u"Error in Utils.ShowHelpByTopic ", HelpFileLocation,
                    [&](Platform& platform, const std::filesystem::path& file) {
                        platform.ShowHelpTopic(file, topic);
                    });
}

}  // namespace halvek
