// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace halvek {

/// Decompresses one span of LZX data, as in compiled help files: frames of 32 KB that build on each
/// other. A new span needs a new decoder.
///
/// The data is never trusted: whatever the bytes are, a frame decodes or throws.
class LzxDecoder {
  public:
    /// @param window  how many bytes a match may reach back, a power of two from 32 KB to 2 MB;
    ///     throws DeviceError for any other number
    explicit LzxDecoder(std::uint32_t window);

    static constexpr std::size_t kFrameLength = 0x8000;

    /// The next frame; the last one holds only `length` bytes. Throws DeviceError when the data is
    /// damaged.
    std::string Frame(std::string_view compressed, std::size_t length);

  private:
    class Bits;

    static constexpr std::size_t kLiterals = 256;
    static constexpr std::size_t kMaxSlots = 50;
    static constexpr std::size_t kMainSymbols = kLiterals + kMaxSlots * 8;
    static constexpr std::size_t kLengthSymbols = 249;
    static constexpr std::size_t kAlignedSymbols = 8;
    static constexpr std::size_t kPreSymbols = 20;
    // A run of code lengths may extend past the symbols for which it is read.
    static constexpr std::size_t kMaxRunLength = 51;

    enum class Block : std::uint8_t { None, Verbatim, Aligned, Stored };

    /// A prefix code whose words follow from their lengths, 0 to 16 bits.
    template <std::size_t symbols>
    class Code {
      public:
        void Build();
        std::uint32_t Read(Bits& in) const;

        std::array<std::uint8_t, symbols + kMaxRunLength> lengths{};

      private:
        static constexpr int kMaxLength = 16;
        static constexpr int kShortLength = 10;
        struct Word {
            std::uint16_t symbol;
            std::uint16_t length;  ///< 0 for none
        };

        void FillShort();

        std::array<std::uint16_t, kMaxLength + 1> count_{};
        std::array<std::uint16_t, symbols> inOrder_{};
        std::array<Word, 1 << kShortLength> short_{};  ///< by the bits that come next
    };

    void ForgetOld();
    void ReadHeader(Bits& in);
    void StartBlock(Bits& in);
    void ReadCodes(Bits& in);
    template <std::size_t symbols>
    static void ReadLengths(Bits& in, Code<symbols>& code, std::size_t first, std::size_t last);
    void Decode(Bits& in, std::size_t wanted, std::size_t most);
    void Copy(Bits& in, std::uint32_t symbol, std::size_t most);
    std::uint32_t MatchOffset(Bits& in, std::uint32_t slot);
    std::uint32_t ReadOffset(Bits& in, std::uint32_t slot);
    void TranslateCalls(std::string& frame) const;

    std::uint32_t window_;
    std::size_t mainSymbols_;
    bool headerRead_ = false;
    std::uint32_t translatedSize_ = 0;  ///< of the program that holds the calls; usually 0 for none
    std::array<std::uint32_t, 3> recent_ = {1, 1, 1};
    Block block_ = Block::None;
    std::uint32_t blockLeft_ = 0;
    Code<kMainSymbols> main_;
    Code<kLengthSymbols> length_;
    Code<kAlignedSymbols> aligned_;
    std::string history_;        ///< as long as it may become with this frame
    std::size_t size_ = 0;       ///< how much of it is there
    std::size_t forgotten_ = 0;  ///< how much came before it
};

}  // namespace halvek
