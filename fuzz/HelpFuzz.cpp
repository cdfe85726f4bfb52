// SPDX-License-Identifier: MIT
#include "fuzz/FuzzTarget.h"

#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/HelpContents.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpTopic.h>
#include <halvekutils/help/LittleEndian.h>
#include <halvekutils/help/LzxDecoder.h>

using namespace halvek;

namespace {

/// The first frame of a program of this size, not compressed, as compressors write it: the targets
/// of its calls are absolute.
std::string StoredFrame(std::string program, std::int32_t size) {
    std::string frame;
    const std::uint64_t bits = std::uint64_t{1} << 63 | static_cast<std::uint64_t>(size) << 31 |
                               std::uint64_t{3} << 28 | std::uint64_t{program.size()} << 4;
    for (const int shift : {48, 56, 32, 40, 16, 24, 0, 8})
        frame += static_cast<char>(bits >> shift);
    frame.append({1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0});  // the latest matches
    for (std::size_t i = 0; i + 10 < program.size(); ++i) {
        if (program[i] != '\xE8') continue;
        const auto at = static_cast<std::int64_t>(i);
        std::int64_t target = *NumberAt<std::int32_t>(program, i + 1);
        if (target >= -at && target < size) target += target < size - at ? at : -std::int64_t{size};
        for (int byte = 0; byte < 4; ++byte) program[++i] = static_cast<char>(target >> 8 * byte);
    }
    return frame + program;
}

void CheckCalls(const std::string& bytes) {
    std::string program;
    while (program.size() < LzxDecoder::kFrameLength) program += bytes + '\xE8';
    program.resize(LzxDecoder::kFrameLength);
    const std::int32_t size = *NumberAt<std::int32_t>(program, 0) & 0x7FFFFFFF;
    LzxDecoder decoder(0x10000);
    const std::string frame = decoder.Frame(StoredFrame(program, size), program.size());
    Require(size == 0 || frame == program, "the targets of calls are relative again");
}

}  // namespace

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
    if (bytes.size() % 8 == 0) CheckCalls(bytes);
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
