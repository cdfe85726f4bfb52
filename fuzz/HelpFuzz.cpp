// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpTopic.h>
#include <halvekutils/help/LzxDecoder.h>


using namespace halvek;

void halvek::Check(FuzzedDataProvider& input) {
    const std::string bytes = input.ConsumeRemainingBytesAsString();
    const std::u16string text = FromCodePage(bytes);
    int depth = 0;
    for (const HelpSitemapEntry& entry : ParseHelpSitemap(HelpTextOf(bytes))) {
        Require(entry.depth <= depth, "no entry skips a level");
        depth = entry.depth + 1;
    }
    const std::u16string path = ParseHelpTopic(text).path;
    Require(path.empty() || path.starts_with(u'/'), "a path starts at the root");
    Require((path + u'/').find(u"/../") == path.npos, "nothing lies above the root");
    Require(ParseHelpTopic(path + u"#").path == path, "a path stays as it was read");
    for (const HelpTopic& meaning : MeaningsOf(text, u"/a/")) {
        Require((meaning.path + u'/').find(u"/../") == path.npos, "no meaning lies above the root");
    }
    try {
        LzxDecoder decoder(0x10000);
        for (int frame = 0; frame < 2; ++frame) {
            Require(decoder.Frame(bytes, LzxDecoder::kFrameLength).size() == 0x8000,
                    "a frame is whole or a fault");
        }
    } catch (const RuntimeError& fault) {
        Require(fault.Code() == Fault::DeviceError, "damage is a device error");
    }
}
