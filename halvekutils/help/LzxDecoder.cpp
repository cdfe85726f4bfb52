// SPDX-License-Identifier: MIT
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/help/LzxDecoder.h>

#include <algorithm>
#include <bit>

namespace halvek {

namespace {

constexpr std::uint32_t kSmallestWindow = 0x8000;
constexpr std::uint32_t kLargestWindow = 0x20'0000;
constexpr std::uint32_t kShortestMatch = 2;
constexpr std::uint32_t kLongLength = 7;  // a match whose length has a symbol of its own

[[noreturn]] void Fail() {
    throw RuntimeError(Fault::DeviceError, u"compressed data is damaged");
}

/// How many ranges of match offsets there are; each is twice as wide as the last but one.
std::size_t SlotsOf(std::uint32_t window) {
    if (window == 0x10'0000) return 42;
    if (window == 0x20'0000) return 50;
    return 2 * static_cast<std::size_t>(std::countr_zero(window));
}

constexpr int ExtraBits(std::uint32_t slot) {
    constexpr std::uint32_t kMax = 17;
    return slot < 4 ? 0 : static_cast<int>(std::min(slot / 2 - 1, kMax));
}

constexpr auto kSlotBases = [] {
    std::array<std::uint32_t, 50> bases{};
    for (std::uint32_t slot = 1; slot < bases.size(); ++slot) {
        bases[slot] = bases[slot - 1] + (1u << ExtraBits(slot - 1));
    }
    return bases;
}();

}  // namespace

/// The bits of a frame: 16-bit little-endian words, each from its highest bit.
class LzxDecoder::Bits {
  public:
    explicit Bits(std::string_view bytes) : bytes_(bytes) {}

    /// The next bits, at most 16, without consuming them; zeros stand for those after the end.
    std::uint32_t Peek(int count) {
        if (count_ < count) Fill();
        return static_cast<std::uint32_t>(word_ >> (64 - count));
    }

    void Skip(int count) {
        if (count > count_) Fail();
        word_ <<= count;
        count_ -= count;
    }

    std::uint32_t Read(int count) {
        if (count > 16) {
            const std::uint32_t high = Read(count - 16);
            return high << 16 | Read(16);
        }
        if (count == 0) return 0;
        const std::uint32_t value = Peek(count);
        Skip(count);
        return value;
    }

    /// Continues at whole bytes, after at least one bit and at most 16.
    void ToBytes() {
        Peek(1);
        if (count_ == 0) Fail();
        Skip(count_ % 16 == 0 ? 16 : count_ % 16);
    }

    /// Bytes between words.
    std::string_view Bytes(std::size_t count) {
        next_ -= static_cast<std::size_t>(count_) / 8;
        word_ = 0;
        count_ = 0;
        if (next_ > bytes_.size() || count > bytes_.size() - next_) Fail();
        next_ += count;
        return bytes_.substr(next_ - count, count);
    }

    std::uint32_t Number() {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char byte : Bytes(4)) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(byte)) << shift;
            shift += 8;
        }
        return value;
    }

    /// Skips the byte that fills up a word.
    void ToWord() { next_ += next_ % 2; }

  private:
    void Fill() {
        while (count_ <= 48 && next_ + 1 < bytes_.size()) {
            const auto low = static_cast<unsigned char>(bytes_[next_]);
            const auto high = static_cast<unsigned char>(bytes_[next_ + 1]);
            word_ |= static_cast<std::uint64_t>(high << 8 | low) << (48 - count_);
            count_ += 16;
            next_ += 2;
        }
    }

    std::string_view bytes_;
    std::size_t next_ = 0;  ///< the byte after those in the word
    std::uint64_t word_ = 0;
    int count_ = 0;
};

template <std::size_t symbols>
void LzxDecoder::Code<symbols>::Build() {
    count_ = {};
    for (std::size_t i = 0; i < symbols; ++i) ++count_[lengths[i]];
    count_[0] = 0;
    std::array<std::uint16_t, kMaxLength + 2> start{};
    std::int32_t left = 1;
    for (std::size_t length = 1; length <= kMaxLength; ++length) {
        left = 2 * left - count_[length];
        if (left < 0) Fail();
        start[length + 1] = static_cast<std::uint16_t>(start[length] + count_[length]);
    }
    for (std::size_t i = 0; i < symbols; ++i) {
        if (lengths[i] != 0) inOrder_[start[lengths[i]]++] = static_cast<std::uint16_t>(i);
    }
    FillShort();
}

/// Each word of few bits, with whatever bits follow it.
template <std::size_t symbols>
void LzxDecoder::Code<symbols>::FillShort() {
    short_.fill({});
    std::size_t at = 0;
    std::size_t place = 0;
    for (int length = 1; length <= kShortLength; ++length) {
        const std::size_t copies = std::size_t{1} << (kShortLength - length);
        for (int i = 0; i < count_[static_cast<std::size_t>(length)]; ++i, at += copies) {
            const Word word{inOrder_[place++], static_cast<std::uint16_t>(length)};
            std::fill_n(short_.begin() + static_cast<std::ptrdiff_t>(at), copies, word);
        }
    }
}

template <std::size_t symbols>
std::uint32_t LzxDecoder::Code<symbols>::Read(Bits& in) const {
    const std::uint32_t bits = in.Peek(kMaxLength);
    const auto [symbol, shortLength] = short_[bits >> (kMaxLength - kShortLength)];
    if (shortLength != 0) {
        in.Skip(shortLength);
        return symbol;
    }
    std::uint32_t first = 0;  // the first word of this length, and its place in order
    std::uint32_t place = 0;
    for (int length = 1; length <= kMaxLength; ++length) {
        const std::uint32_t word = bits >> (kMaxLength - length);
        const std::uint32_t count = count_[static_cast<std::size_t>(length)];
        first <<= 1;
        if (word < first + count) {
            in.Skip(length);
            return inOrder_[place + word - first];
        }
        first += count;
        place += count;
    }
    Fail();
}

LzxDecoder::LzxDecoder(std::uint32_t window) : window_(window) {
    if (!std::has_single_bit(window) || window < kSmallestWindow || window > kLargestWindow) Fail();
    mainSymbols_ = kLiterals + SlotsOf(window) * 8;
}

std::string LzxDecoder::Frame(std::string_view compressed, std::size_t length) {
    Bits in(compressed);
    if (!headerRead_) ReadHeader(in);
    ForgetOld();
    const std::size_t start = size_;
    const std::size_t end = start + length;
    history_.resize(start + kFrameLength);
    while (size_ < end) {
        if (blockLeft_ == 0) StartBlock(in);
        const std::size_t before = size_;
        const std::size_t most = std::min(before + blockLeft_, start + kFrameLength);
        const std::size_t wanted = std::min(most, end);
        if (block_ == Block::Stored) {
            in.Bytes(wanted - before).copy(history_.data() + before, wanted - before);
            size_ = wanted;
        } else {
            Decode(in, wanted, most);
        }
        blockLeft_ -= static_cast<std::uint32_t>(size_ - before);
        if (block_ == Block::Stored && blockLeft_ == 0) in.ToWord();
    }
    std::string frame = history_.substr(start, length);
    if (translatedSize_ != 0) TranslateCalls(frame);
    return frame;
}

/// No match reaches back farther than the window.
void LzxDecoder::ForgetOld() {
    if (size_ <= 2 * std::size_t{window_}) return;
    const std::size_t old = size_ - window_;
    history_.erase(0, old);
    forgotten_ += old;
    size_ -= old;
}

void LzxDecoder::ReadHeader(Bits& in) {
    headerRead_ = true;
    if (in.Read(1) != 0) translatedSize_ = in.Read(32);
}

void LzxDecoder::StartBlock(Bits& in) {
    const std::uint32_t kind = in.Read(3);
    if (kind == 0 || kind > static_cast<std::uint32_t>(Block::Stored)) Fail();
    block_ = static_cast<Block>(kind);
    blockLeft_ = in.Read(24);
    if (block_ == Block::Stored) {
        in.ToBytes();
        for (std::uint32_t& offset : recent_) offset = in.Number();
    } else {
        ReadCodes(in);
    }
}

void LzxDecoder::ReadCodes(Bits& in) {
    if (block_ == Block::Aligned) {
        for (std::size_t i = 0; i < kAlignedSymbols; ++i) {
            aligned_.lengths[i] = static_cast<std::uint8_t>(in.Read(3));
        }
        aligned_.Build();
    }
    ReadLengths(in, main_, 0, kLiterals);
    ReadLengths(in, main_, kLiterals, mainSymbols_);
    main_.Build();
    ReadLengths(in, length_, 0, kLengthSymbols);
    length_.Build();
}

/// Code lengths are stored as differences from those of the previous block, in a code of their own
/// that also has words for runs.
template <std::size_t symbols>
void LzxDecoder::ReadLengths(Bits& in, Code<symbols>& code, std::size_t first, std::size_t last) {
    constexpr std::uint32_t kFewZeros = 17;
    constexpr std::uint32_t kManyZeros = 18;
    constexpr std::uint32_t kRepeat = 19;
    Code<kPreSymbols> pre;
    for (std::size_t i = 0; i < kPreSymbols; ++i) {
        pre.lengths[i] = static_cast<std::uint8_t>(in.Read(4));
    }
    pre.Build();
    const auto changed = [&code](std::size_t at, std::uint32_t by) {
        if (by > 16) Fail();
        return static_cast<std::uint8_t>((code.lengths[at] + 17u - by) % 17u);
    };
    while (first < last) {
        const std::uint32_t word = pre.Read(in);
        std::size_t run = 1;
        std::uint8_t length = 0;
        if (word == kFewZeros) {
            run = in.Read(4) + 4;
        } else if (word == kManyZeros) {
            run = in.Read(5) + 20;
        } else if (word == kRepeat) {
            run = in.Read(1) + 4;
            length = changed(first, pre.Read(in));
        } else {
            length = changed(first, word);
        }
        while (run-- > 0) code.lengths[first++] = length;
    }
}

/// Decodes until there are `wanted` bytes; a match may run past that, but not past `most`.
void LzxDecoder::Decode(Bits& in, std::size_t wanted, std::size_t most) {
    while (size_ < wanted) {
        const std::uint32_t symbol = main_.Read(in);
        if (symbol < kLiterals) {
            history_[size_++] = static_cast<char>(symbol);
        } else {
            Copy(in, static_cast<std::uint32_t>(symbol - kLiterals), most);
        }
    }
}

void LzxDecoder::Copy(Bits& in, std::uint32_t symbol, std::size_t most) {
    std::size_t length = symbol % 8;
    if (length == kLongLength) length += length_.Read(in);
    length += kShortestMatch;
    const std::size_t offset = MatchOffset(in, symbol / 8);
    if (offset == 0 || offset > window_ || offset > size_) Fail();
    if (length > most - size_) Fail();
    char* const to = history_.data() + size_;
    size_ += length;
    if (offset >= length) {
        std::copy_n(to - offset, length, to);
        return;
    }
    // Byte by byte: the match overlaps what it produces.
    for (std::size_t i = 0; i < length; ++i) to[i] = *(to + i - offset);
}

/// The first three slots stand for the offsets used last.
std::uint32_t LzxDecoder::MatchOffset(Bits& in, std::uint32_t slot) {
    constexpr std::uint32_t kRecent = 3;
    if (slot < kRecent) {
        std::swap(recent_[0], recent_[slot]);
    } else {
        recent_ = {ReadOffset(in, slot), recent_[0], recent_[1]};
    }
    return recent_[0];
}

std::uint32_t LzxDecoder::ReadOffset(Bits& in, std::uint32_t slot) {
    constexpr int kAlignedBits = 3;
    const int extra = ExtraBits(slot);
    std::uint32_t value = 0;
    if (block_ == Block::Aligned && extra >= kAlignedBits) {
        value = in.Read(extra - kAlignedBits) << kAlignedBits;
        value += aligned_.Read(in);
    } else {
        value = in.Read(extra);
    }
    return kSlotBases[slot] - 2 + value;
}

/// Programs are compressed with absolute addresses as the targets of their calls; this makes them
/// relative again.
void LzxDecoder::TranslateCalls(std::string& frame) const {
    constexpr std::size_t kNoCallsAtEnd = 10;
    constexpr char kCall = '\xE8';
    const auto size = static_cast<std::int64_t>(translatedSize_);
    const auto frameStart = static_cast<std::int64_t>(forgotten_ + size_ - frame.size());
    for (std::size_t i = 0; i + kNoCallsAtEnd < frame.size(); ++i) {
        if (frame[i] != kCall) continue;
        const std::int64_t at = frameStart + static_cast<std::int64_t>(i);
        const auto target =
            static_cast<std::int32_t>(Bits(std::string_view(frame).substr(i + 1)).Number());
        if (target >= -at && target < size) {
            std::uint32_t relative =
                static_cast<std::uint32_t>(target >= 0 ? target - at : target + size);
            for (std::size_t byte = 1; byte <= 4; ++byte, relative >>= 8) {
                frame[i + byte] = static_cast<char>(relative & 0xFF);
            }
        }
        i += 4;
    }
}

}  // namespace halvek
