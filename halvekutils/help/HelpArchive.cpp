// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/base/RuntimeError.h>
#include <halvekutils/base/SystemFault.h>
#include <halvekutils/base/Utf8.h>
#include <halvekutils/help/HelpArchive.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/LittleEndian.h>
#include <halvekutils/help/LzxDecoder.h>

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

namespace halvek {

namespace {

constexpr std::uint64_t kLargestObject = 0x100'0000;
constexpr std::uint64_t kLargestDirectory = 0x100'0000;
constexpr std::size_t kMaxObjects = 200'000;
constexpr std::uint64_t kFrameLength = LzxDecoder::kFrameLength;
// The size of a frame that does not compress at all.
constexpr std::uint64_t kMaxFrame = kFrameLength + 6144;
constexpr std::uint64_t kMaxFramesInSpan = 512;

constexpr std::string_view kControlData = "::DataSpace/Storage/MSCompressed/ControlData";
constexpr std::string_view kContent = "::DataSpace/Storage/MSCompressed/Content";
constexpr std::string_view kResetTable =
    "::DataSpace/Storage/MSCompressed/Transform/{7FC28940-9D31-11D0-9B27-00A0C91E9C7C}/"
    "InstanceData/ResetTable";

constexpr char16_t kCutOff[] = u"the file is cut off or damaged";
constexpr char16_t kBadDirectory[] = u"the directory is damaged";
constexpr char16_t kBadCompression[] = u"the compression is damaged or of an unknown kind";

/// Reads the entries of a directory: lengths and numbers in bytes of seven bits each, the highest
/// first, and paths.
class Entries {
  public:
    explicit Entries(std::string_view bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }

    std::optional<std::uint64_t> Number() {
        constexpr std::size_t kMaxLength = 9;
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < std::min(rest_.size(), kMaxLength); ++i) {
            const auto byte = static_cast<unsigned char>(rest_[i]);
            value = value << 7 | (byte & 0x7Fu);
            if (byte < 0x80) {
                rest_.remove_prefix(i + 1);
                return value;
            }
        }
        return std::nullopt;
    }

    std::optional<std::string_view> Text() {
        const auto length = Number();
        if (!length || *length > rest_.size()) return std::nullopt;
        const std::string_view text = rest_.substr(0, static_cast<std::size_t>(*length));
        rest_.remove_prefix(text.size());
        return text;
    }

  private:
    std::string_view rest_;
};

/// True when the span from `start` lies within the first `all` bytes.
bool LiesIn(std::uint64_t start, std::uint64_t length, std::uint64_t all) {
    return start <= all && length <= all - start;
}

}  // namespace

HelpArchive::HelpArchive(const std::filesystem::path& file) : file_(file) {
    // Opening a pipe would wait for a writer.
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error)) {
        if (error) throw SystemFault(error, file);
        Fail(u"no file");
    }
    size_ = std::filesystem::file_size(file);
    in_.open(file, std::ios::binary);
    if (!in_) throw RuntimeError(Fault::PermissionDenied, FromUtf8(file.native()));
    ReadDirectory();
    ReadCompression();
}

HelpArchive::~HelpArchive() = default;

void HelpArchive::Fail(TextIn what) const {
    throw RuntimeError(Fault::DeviceError, FromUtf8(file_.native()) + u": " + what.Str());
}

void HelpArchive::Check(bool holds, TextIn what) const {
    if (!holds) Fail(what);
}

std::string HelpArchive::BytesAt(std::uint64_t start, std::uint64_t length) {
    Check(LiesIn(start, length, size_), kCutOff);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    in_.clear();
    in_.seekg(static_cast<std::streamoff>(start));
    in_.read(bytes.data(), static_cast<std::streamsize>(length));
    Check(in_.gcount() == static_cast<std::streamsize>(length), kCutOff);
    return bytes;
}

void HelpArchive::ReadDirectory() {
    constexpr std::uint64_t kHeaderLength = 0x60;
    constexpr std::uint64_t kDirectoryHeaderLength = 0x54;
    constexpr std::uint32_t kShortestPage = 0x20;
    constexpr std::uint64_t kBeforeEntries = 0x14;
    Check(size_ >= kHeaderLength, u"the file is no help file");
    const std::string header = BytesAt(0, kHeaderLength);
    const auto version = *NumberAt<std::uint32_t>(header, 4);
    Check(header.starts_with("ITSF") && (version == 2 || version == 3),
          u"the file is no help file");
    const auto start = *NumberAt<std::uint64_t>(header, 0x48);
    const auto length = *NumberAt<std::uint64_t>(header, 0x50);
    Check(LiesIn(start, length, size_), kCutOff);
    Check(length >= kDirectoryHeaderLength && length <= kLargestDirectory, kBadDirectory);
    dataStart_ = version == 2 ? start + length : *NumberAt<std::uint64_t>(header, 0x58);
    Check(dataStart_ <= size_, kCutOff);

    const std::string directory = BytesAt(start, length);
    const auto headerLength = *NumberAt<std::uint32_t>(directory, 8);
    const auto pageLength = *NumberAt<std::uint32_t>(directory, 0x10);
    Check(directory.starts_with("ITSP") && headerLength >= kDirectoryHeaderLength &&
              pageLength >= kShortestPage,
          kBadDirectory);
    // The pages of names, one after the other; those of the index are left out.
    for (std::uint64_t at = headerLength; LiesIn(at, pageLength, length); at += pageLength) {
        const std::string_view page(directory.data() + at, pageLength);
        if (!page.starts_with("PMGL")) continue;
        const std::uint32_t unused = *NumberAt<std::uint32_t>(page, 4);
        Check(unused <= pageLength - kBeforeEntries, kBadDirectory);
        ReadEntries(page.substr(kBeforeEntries, pageLength - kBeforeEntries - unused));
    }
    Check(!objects_.empty(), kBadDirectory);
}

void HelpArchive::ReadEntries(std::string_view entries) {
    Entries rest(entries);
    while (!rest.AtEnd()) {
        const auto path = rest.Text();
        const auto section = rest.Number();
        const auto start = rest.Number();
        const auto length = rest.Number();
        Check(path && section && start && length && *section <= 1, kBadDirectory);
        Check(objects_.size() < kMaxObjects, u"the file holds too many objects");
        if (paths_.Add(HelpNameOf(*path))) objects_.push_back({*section == 1, *start, *length});
    }
}

const HelpArchive::Object* HelpArchive::Find(TextIn path) const {
    const std::size_t number = paths_.Find(path);
    return number == KeyIndex::kNone ? nullptr : &objects_[number];
}

const HelpArchive::Object* HelpArchive::FindInternal(std::string_view path) const {
    return Find(FromUtf8(path));
}

std::string HelpArchive::ReadInternal(std::string_view internalPath) {
    const Object* const object = FindInternal(internalPath);
    Check(object != nullptr && !object->compressed && object->length <= kLargestObject,
          kBadCompression);
    Check(LiesIn(object->start, object->length, size_ - dataStart_), kCutOff);
    return BytesAt(dataStart_ + object->start, object->length);
}

void HelpArchive::ReadCompression() {
    if (FindInternal(kContent) == nullptr) return;
    ReadControlData();
    ReadFrames();
}

void HelpArchive::ReadControlData() {
    const std::string control = ReadInternal(kControlData);
    const auto version = NumberAt<std::uint32_t>(control, 8);
    const auto interval = NumberAt<std::uint32_t>(control, 0x0C);
    const auto window = NumberAt<std::uint32_t>(control, 0x10);
    const auto windowsInSpan = NumberAt<std::uint32_t>(control, 0x14);
    Check(windowsInSpan && control.compare(4, 4, "LZXC") == 0, kBadCompression);
    // From the second version on, lengths count frames.
    const std::uint64_t unit = *version == 2 ? kFrameLength : 1;
    const std::uint64_t windowLength = *window * unit;
    Check(windowLength >= kFrameLength && windowLength <= kLargestObject, kBadCompression);
    compression_.window = static_cast<std::uint32_t>(windowLength);
    compression_.framesInSpan = *interval * unit / (windowLength / 2) * *windowsInSpan;
    Check(compression_.framesInSpan >= 1 && compression_.framesInSpan <= kMaxFramesInSpan,
          kBadCompression);
}

void HelpArchive::ReadFrames() {
    const Object& content = *FindInternal(kContent);
    Check(!content.compressed && LiesIn(content.start, content.length, size_ - dataStart_),
          kCutOff);
    const std::string table = ReadInternal(kResetTable);
    const auto count = NumberAt<std::uint32_t>(table, 4);
    const auto entries = NumberAt<std::uint32_t>(table, 0x0C);
    const auto length = NumberAt<std::uint64_t>(table, 0x10);
    const auto compressedLength = NumberAt<std::uint64_t>(table, 0x18);
    const auto frameLength = NumberAt<std::uint64_t>(table, 0x20);
    Check(frameLength && *frameLength == kFrameLength && *compressedLength <= content.length,
          kBadCompression);
    Check(LiesIn(*entries, *count * std::uint64_t{8}, table.size()), kBadCompression);
    Check(*length <= *count * kFrameLength, kBadCompression);
    compression_.contentStart = dataStart_ + content.start;
    compression_.length = *length;
    compression_.frames.reserve(*count + std::size_t{1});
    for (std::uint64_t i = 0; i < *count; ++i) {
        compression_.frames.push_back(*NumberAt<std::uint64_t>(table, *entries + i * 8));
    }
    compression_.frames.push_back(*compressedLength);
    for (std::size_t i = 0; i < *count; ++i) {
        const std::uint64_t from = compression_.frames[i];
        const std::uint64_t to = compression_.frames[i + 1];
        Check(from <= to && to - from <= kMaxFrame, kBadCompression);
    }
}

std::string HelpArchive::Read(TextIn path) {
    const Object* const found = Find(path);
    if (found == nullptr) {
        throw RuntimeError(Fault::FileNotFound, FromUtf8(file_.native()) + u"::" + path.Str());
    }
    const auto& [compressed, start, length] = *found;
    Check(length <= kLargestObject, u"an object is too large");
    if (compressed) return Decompressed(start, length);
    Check(LiesIn(start, length, size_ - dataStart_), kCutOff);
    return BytesAt(dataStart_ + start, length);
}

std::u16string HelpArchive::FirstEndingIn(TextIn ending) const {
    for (std::size_t number = 0; number < paths_.Count(); ++number) {
        const std::u16string_view path = paths_.KeyOf(number);
        if (EndsFolded(path, ending)) return std::u16string(path);
    }
    return {};
}

std::vector<std::u16string> HelpArchive::PathsEndingIn(
    std::initializer_list<std::u16string_view> endings) const {
    std::vector<std::size_t> numbers;
    for (std::size_t number = 0; number < paths_.Count(); ++number) {
        const auto ends = [path = paths_.KeyOf(number)](std::u16string_view ending) {
            return EndsFolded(path, ending);
        };
        if (std::ranges::any_of(endings, ends)) numbers.push_back(number);
    }
    std::ranges::stable_sort(numbers, {}, [this](std::size_t number) {
        return std::pair(objects_[number].compressed, objects_[number].start);
    });
    std::vector<std::u16string> paths;
    paths.reserve(numbers.size());
    for (const std::size_t number : numbers) paths.emplace_back(paths_.KeyOf(number));
    return paths;
}

std::string HelpArchive::Decompressed(std::uint64_t start, std::uint64_t length) {
    Check(LiesIn(start, length, compression_.length), kBadCompression);
    const std::uint64_t spanLength = compression_.framesInSpan * kFrameLength;
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(length));
    while (bytes.size() < length) {
        const std::uint64_t at = start + bytes.size();
        const std::uint64_t end = std::min(at % spanLength + length - bytes.size(), spanLength);
        DecompressTo(at / spanLength, end);
        bytes.append(span_, static_cast<std::size_t>(at % spanLength),
                     static_cast<std::size_t>(length) - bytes.size());
    }
    return bytes;
}

/// Decompresses a span up to a place in it.
void HelpArchive::DecompressTo(std::uint64_t number, std::uint64_t end) {
    if (decoder_ == nullptr || spanNumber_ != number) {
        span_.clear();
        decoder_ = std::make_unique<LzxDecoder>(compression_.window);
        spanNumber_ = number;
    }
    try {
        while (span_.size() < end) DecompressFrame();
    } catch (...) {
        decoder_ = nullptr;
        throw;
    }
}

void HelpArchive::DecompressFrame() {
    const std::uint64_t frame =
        spanNumber_ * compression_.framesInSpan + span_.size() / kFrameLength;
    const std::uint64_t at = frame * kFrameLength;
    Check(at < compression_.length && frame + 1 < compression_.frames.size(), kBadCompression);
    const std::uint64_t from = compression_.frames[static_cast<std::size_t>(frame)];
    const std::uint64_t to = compression_.frames[static_cast<std::size_t>(frame) + 1];
    const std::uint64_t length = std::min(kFrameLength, compression_.length - at);
    const std::string compressed = BytesAt(compression_.contentStart + from, to - from);
    try {
        span_ += decoder_->Frame(compressed, static_cast<std::size_t>(length));
    } catch (const RuntimeError&) {
        Fail(u"an object is damaged");
    }
}

}  // namespace halvek
