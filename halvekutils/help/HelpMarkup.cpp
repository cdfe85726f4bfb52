// SPDX-License-Identifier: MIT
#include <halvekutils/base/CaseFolding.h>
#include <halvekutils/help/HelpMarkup.h>
#include <halvekutils/help/HelpStyle.h>
#include <halvekutils/help/HelpText.h>
#include <halvekutils/help/HelpWords.h>
#include <halvekutils/help/HtmlTokens.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace halvek {

namespace {

constexpr std::size_t kMaxLength = 5'000'000;
constexpr std::size_t kMaxElements = 120'000;
constexpr std::size_t kMaxLines = 120'000;
constexpr std::size_t kMaxCells = 40'000;
constexpr std::size_t kMaxInTables = 3'000'000;
constexpr std::size_t kMaxStyleTrials = 10'000'000;
constexpr int kMaxPictures = 500;
// Layout time doubles with each table inside a table, and is quadratic in the depth of others.
constexpr std::size_t kDeepestTable = 5;
constexpr std::size_t kDeepest = 60;
constexpr std::size_t kNone = std::u16string_view::npos;
// The layout of one paragraph is quadratic in its length, and in that of the texts beside a
// picture.
constexpr std::size_t kMaxParagraph = 5000;
constexpr std::size_t kMaxUnbroken = 1000;
constexpr int kMaxFloats = 20;
constexpr int kMaxFloatWidth = 250;

enum class Kind {
    Unknown,  ///< its tags are left out, its content stays
    Flat,     ///< its end tag may be missing, or it has none
    Once,     ///< further ones are left out
    Nested,
    Table,
    Cell,
    Raw,  ///< left out with its content
    Title,
    Style,
    Link,
    Picture,
    Area,
    Frame,
    NoFrames,
    Meta,
};

struct Element {
    std::u16string_view name;
    Kind kind;
    std::u16string_view shownAs = {};  ///< another element that the text layout knows
};

constexpr Element kElements[] = {
    {u"a", Kind::Nested},
    {u"address", Kind::Nested},
    {u"area", Kind::Area},
    {u"article", Kind::Nested, u"div"},
    {u"b", Kind::Nested},
    {u"big", Kind::Nested},
    {u"blockquote", Kind::Nested},
    {u"body", Kind::Once},
    {u"br", Kind::Flat},
    {u"caption", Kind::Nested, u"div"},
    {u"center", Kind::Nested},
    {u"cite", Kind::Nested},
    {u"code", Kind::Nested},
    {u"dd", Kind::Nested},
    {u"del", Kind::Nested, u"s"},
    {u"dfn", Kind::Nested},
    {u"dir", Kind::Nested, u"ul"},
    {u"div", Kind::Nested},
    {u"dl", Kind::Nested},
    {u"dt", Kind::Nested},
    {u"em", Kind::Nested},
    {u"fieldset", Kind::Nested, u"div"},
    {u"font", Kind::Nested},
    {u"footer", Kind::Nested, u"div"},
    {u"frame", Kind::Frame},
    {u"h1", Kind::Nested},
    {u"h2", Kind::Nested},
    {u"h3", Kind::Nested},
    {u"h4", Kind::Nested},
    {u"h5", Kind::Nested},
    {u"h6", Kind::Nested},
    {u"header", Kind::Nested, u"div"},
    {u"hr", Kind::Flat},
    {u"i", Kind::Nested},
    {u"iframe", Kind::Frame},
    {u"img", Kind::Picture},
    {u"ins", Kind::Nested, u"u"},
    {u"kbd", Kind::Nested},
    {u"li", Kind::Flat},
    {u"link", Kind::Link},
    {u"menu", Kind::Nested, u"ul"},
    {u"nav", Kind::Nested, u"div"},
    {u"nobr", Kind::Nested},
    {u"noframes", Kind::NoFrames},
    {u"ol", Kind::Nested},
    {u"p", Kind::Flat},
    {u"pre", Kind::Nested},
    {u"s", Kind::Nested},
    {u"samp", Kind::Nested},
    {u"script", Kind::Raw},
    {u"section", Kind::Nested, u"div"},
    {u"small", Kind::Nested},
    {u"span", Kind::Nested},
    {u"strike", Kind::Nested, u"s"},
    {u"strong", Kind::Nested},
    {u"style", Kind::Style},
    {u"sub", Kind::Nested},
    {u"sup", Kind::Nested},
    {u"table", Kind::Table},
    {u"td", Kind::Cell},
    {u"textarea", Kind::Raw},
    {u"th", Kind::Cell},
    {u"title", Kind::Title},
    {u"tr", Kind::Cell},
    {u"tt", Kind::Nested},
    {u"u", Kind::Nested},
    {u"ul", Kind::Nested},
    {u"var", Kind::Nested},
    {u"xmp", Kind::Nested, u"pre"},
};
static_assert(std::ranges::is_sorted(kElements, {}, &Element::name));

Element ElementOf(std::u16string_view name) {
    constexpr std::size_t kLongestName = 10;
    std::u16string folded(name.substr(0, kLongestName + 1));
    for (char16_t& character : folded) character = FoldCase(character);
    const auto* const found = std::ranges::lower_bound(kElements, folded, {}, &Element::name);
    const bool isKnown = found != std::end(kElements) && found->name == folded;
    return isKnown ? *found : Element{{}, Kind::Unknown};
}

struct Attribute {
    enum class Kind { Text, Word, Colour, Number, Size, Link, Background, Style };

    std::u16string_view name;
    Kind kind;
    int most = 0;
};

constexpr Attribute kAttributes[] = {
    {u"align", Attribute::Kind::Word},
    {u"background", Attribute::Kind::Background},
    {u"bgcolor", Attribute::Kind::Colour},
    {u"border", Attribute::Kind::Number, 50},
    {u"bordercolor", Attribute::Kind::Colour},
    {u"cellpadding", Attribute::Kind::Number, 50},
    {u"cellspacing", Attribute::Kind::Number, 50},
    {u"class", Attribute::Kind::Text},
    {u"color", Attribute::Kind::Colour},
    {u"colspan", Attribute::Kind::Number, 50},
    {u"dir", Attribute::Kind::Word},
    {u"face", Attribute::Kind::Text},
    {u"href", Attribute::Kind::Link},
    {u"id", Attribute::Kind::Text},
    {u"link", Attribute::Kind::Colour},
    {u"name", Attribute::Kind::Text},
    {u"rowspan", Attribute::Kind::Number, 200},
    {u"size", Attribute::Kind::Word},
    {u"start", Attribute::Kind::Number, 1'000'000},
    {u"style", Attribute::Kind::Style},
    {u"text", Attribute::Kind::Colour},
    {u"title", Attribute::Kind::Text},
    {u"type", Attribute::Kind::Word},
    {u"valign", Attribute::Kind::Word},
    {u"width", Attribute::Kind::Size, 4000},
};

std::u16string Digits(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// The number at the beginning; -1 for none.
int NumberOf(std::u16string_view text, int most) {
    int number = -1;
    for (const char16_t digit : text) {
        if (digit < u'0' || digit > u'9') break;
        number = std::min(std::max(number, 0) * 10 + (digit - u'0'), most);
    }
    return number;
}

std::u16string Escaped(std::u16string_view text, std::size_t most) {
    std::u16string escaped;
    for (const char16_t character : text.substr(0, most)) {
        switch (character) {
            case u'<':
                escaped += u"&lt;";
                break;
            case u'>':
                escaped += u"&gt;";
                break;
            case u'&':
                escaped += u"&amp;";
                break;
            case u'"':
                escaped += u"&quot;";
                break;
            default:
                if (character >= u' ' || character == u'\n') escaped += character;
        }
    }
    return escaped;
}

/// Copies a page, one token after the other.
class Copy {
  public:
    Copy(std::u16string_view html, HelpSurroundings& file)
        : tokens_(html),
          file_(file),
          style_([this](std::u16string_view address) { return Background(address); }) {
        page_.html.reserve(std::min(html.size(), kMaxLength));
    }

    HelpMarkup Result() {
        while (!page_.isCut && tokens_.Next()) {
            if (tokens_.IsText()) {
                AddText();
            } else {
                AddTag();
            }
            page_.isCut = length_ >= kMaxLength || lines_ >= kMaxLines;
            if (IsTooIntricate()) {
                page_.isPlain = true;
                return std::move(page_);
            }
        }
        page_.hasColours = hasColours_ || style_.HasColours();
        return std::move(page_);
    }

  private:
    bool IsTooIntricate() const {
        return elements_ > kMaxElements || cells_ > kMaxCells || textInTables_ > kMaxInTables ||
               elements_ * style_.Rules() > kMaxStyleTrials;
    }

    void AddText() {
        if (isInNoFrames_ && hasFrames_) return;
        const bool isBlank = tokens_.Text().find_first_not_of(u" \t\r\n") == kNone;
        if (!isBlank) OpenCell();
        std::u16string_view text = tokens_.Text().substr(0, kMaxLength - length_);
        if (std::ranges::count(open_, u"pre", &Element::name) > 0) text = FirstLines(text);
        while (!text.empty()) {
            const std::u16string_view part = PartOf(text);
            const std::size_t before = page_.html.size();
            AppendHelpText(page_.html, part, marks_);
            length_ += page_.html.size() - before;
            if (!tables_.empty()) textInTables_ += part.size() << tables_.size();
            text.remove_prefix(part.size());
            paragraph_ = text.empty() ? paragraph_ + part.size() : kMaxParagraph;
        }
    }

    /// As many lines as the page still takes.
    std::u16string_view FirstLines(std::u16string_view text) {
        std::size_t at = text.find(u'\n');
        while (at != kNone && ++lines_ < kMaxLines) {
            at = text.find(u'\n', at + 1);
        }
        return text.substr(0, at);
    }

    /// As much of the text as the paragraph still takes; starts another one when it takes no more.
    std::u16string_view PartOf(std::u16string_view text) {
        if (paragraph_ >= kMaxParagraph) {
            page_.html += u"<p style=\"margin:0\">";
            paragraph_ = 0;
        }
        const std::size_t room = kMaxParagraph - paragraph_;
        if (text.size() <= room) return text;
        const std::size_t blank = text.find_last_of(u" \n", room);
        if (blank != kNone && blank > room / 2) return text.substr(0, blank + 1);
        // Neither pairs nor references are cut.
        std::size_t end = std::min(room, kMaxUnbroken);
        const std::size_t reference = text.substr(0, end).find_last_of(u"&;");
        if (reference != kNone && text[reference] == u'&' && end - reference < 12 &&
            reference > 0) {
            end = reference;
        }
        if (end > 1 && text[end] >= 0xDC00 && text[end] <= 0xDFFF) --end;
        return text.substr(0, end);
    }

    /// Tags take part in the length of a paragraph, unless they end it.
    void CountTag(const Element& element) {
        static constexpr std::u16string_view kEnding[] = {
            u"p",  u"div", u"li", u"td", u"th", u"tr", u"h1", u"h2",    u"h3",
            u"h4", u"h5",  u"h6", u"ul", u"ol", u"dd", u"dt", u"table",
        };
        constexpr std::size_t kOfTag = 10;
        paragraph_ += kOfTag;
        if (std::ranges::count(kEnding, ShownAs(element)) > 0) paragraph_ = 0;
    }

    void AddTag() {
        const Element element = ElementOf(tokens_.Name());
        if (element.kind == Kind::NoFrames) isInNoFrames_ = !tokens_.IsEnd();
        if (isInNoFrames_ && hasFrames_) return;
        if (tokens_.IsEnd()) {
            AddEnd(element);
            return;
        }
        ++elements_;
        marks_ = 0;
        switch (element.kind) {
            case Kind::Unknown:
            case Kind::NoFrames:
            case Kind::Meta:
                break;
            case Kind::Raw:
                tokens_.TakeRaw();
                break;
            case Kind::Title:
                page_.html += u"<title>" +
                              Escaped(HelpTitleOf(WithoutReferences(tokens_.TakeRaw())), 500) +
                              u"</title>";
                break;
            case Kind::Style:
                AddStyle(tokens_.TakeRaw());
                break;
            case Kind::Link:
                AddLinkedStyle();
                break;
            case Kind::Picture:
                AddPicture();
                break;
            case Kind::Area:
            case Kind::Frame:
                AddPlace(element.kind == Kind::Frame);
                break;
            default:
                AddStart(element);
        }
    }

    /// Elements that are nested too deep lose their tags.
    void AddStart(const Element& element) {
        if (element.kind == Kind::Once && Dropped(element)++ > 0) return;
        if (element.kind == Kind::Cell) {
            AddCell(element);
            return;
        }
        const bool isTable = element.kind == Kind::Table;
        const bool nests = isTable || element.kind == Kind::Nested;
        // Many pages leave the ends of these out, and none stands in another.
        for (const std::u16string_view alone : {u"a", u"dd", u"dt"}) {
            if (element.name == alone) AddEnd(element);
        }
        const bool isTooDeep =
            open_.size() >= kDeepest || (isTable && tables_.size() >= kDeepestTable);
        if (nests && (isTooDeep || (isTable && Dropped(element) > 0))) {
            ++Dropped(element);
            return;
        }
        OpenCell();
        Write(element, nests);
        if (isTable) tables_.push_back({});
    }

    /// Opens what a cell needs around it, and closes what cannot be in it: the text layout makes
    /// tables in tables of anything else.
    void AddCell(const Element& element) {
        if (!IsInTable()) {
            page_.html += u' ';
            return;
        }
        const bool isRow = element.name == u"tr";
        const std::size_t row = OpenAt(u"tr");
        CloseTo(isRow || row == kNone ? OpenAt(u"table") + 1 : row + 1);
        if (!isRow && row == kNone) AddRow();
        CountCells(isRow, tokens_.Attributes());
        Write(element, true);
    }

    void AddRow() {
        CountCells(true, {});
        page_.html += u"<tr>";
        open_.push_back(ElementOf(u"tr"));
    }

    /// What stands in a table, but in no cell of it, gets one.
    void OpenCell() {
        if (open_.empty() || !IsInTable()) return;
        if (open_.back().name == u"table") AddRow();
        if (open_.back().name != u"tr") return;
        CountCells(false, {});
        page_.html += u"<td>";
        open_.push_back(ElementOf(u"td"));
    }

    void Write(const Element& element, bool nests) {
        if (nests) open_.push_back(element);
        CountTag(element);
        (page_.html += u'<') += ShownAs(element);
        for (const HtmlAttribute& attribute : tokens_.Attributes()) {
            const bool floats =
                element.kind == Kind::Table && EqualFolded(attribute.name, u"align");
            if (!floats || !IsFloat(attribute.value)) AddAttribute(attribute);
        }
        page_.html += u'>';
    }

    static bool IsFloat(std::u16string_view alignment) {
        return EqualFolded(alignment, u"left") || EqualFolded(alignment, u"right");
    }

    void AddEnd(const Element& element) {
        const bool nests = element.kind == Kind::Table || element.kind == Kind::Nested;
        if (nests && Dropped(element) > 0) {
            --Dropped(element);
        } else if (nests || (element.kind == Kind::Cell && IsInTable())) {
            const std::size_t at = OpenAt(element.name);
            if (at != kNone) CloseTo(at);
        } else if (element.kind == Kind::Flat && tokens_.IsEnd()) {
            ((page_.html += u"</") += ShownAs(element)) += u'>';
        }
    }

    /// Where the innermost open element of that name is; kNone when none is, or only around the
    /// cell or the table that is open.
    std::size_t OpenAt(std::u16string_view name) const {
        const bool isOfTable = name == u"table" || name == u"tr";
        for (std::size_t at = open_.size(); at-- > 0;) {
            const std::u16string_view open = open_[at].name;
            if (open == name) return at;
            const bool isCell = open == u"td" || open == u"th";
            if (open == u"table" || (isCell && !isOfTable)) return kNone;
        }
        return kNone;
    }

    /// Closes the elements from a place on, the innermost first.
    void CloseTo(std::size_t place) {
        while (open_.size() > place) {
            const Element element = open_.back();
            open_.pop_back();
            if (element.kind == Kind::Table) tables_.pop_back();
            CountTag(element);
            ((page_.html += u"</") += ShownAs(element)) += u'>';
        }
    }

    static std::u16string_view ShownAs(const Element& element) {
        return element.shownAs.empty() ? element.name : element.shownAs;
    }

    int& Dropped(const Element& element) {
        const auto* const found = std::ranges::find(kElements, element.name, &Element::name);
        return dropped_[static_cast<std::size_t>(found - std::begin(kElements))];
    }

    bool IsInTable() { return !tables_.empty() && Dropped(ElementOf(u"table")) == 0; }

    /// A table takes as many cells as its longest row has in each of its rows; one in another costs
    /// twice as much.
    void CountCells(bool isRow, const std::vector<HtmlAttribute>& attributes) {
        Table& table = tables_.back();
        const auto span = [&](std::u16string_view name, int most) {
            return static_cast<std::size_t>(std::max(NumberOf(ValueOf(attributes, name), most), 1));
        };
        const std::size_t before = table.Cells();
        if (isRow) {
            ++table.rows;
            table.inRow = 0;
        } else {
            table.inRow += span(u"colspan", 50);
            table.rows = std::max(table.rows, span(u"rowspan", 200));
            table.columns = std::max(table.columns, table.inRow);
        }
        cells_ += (table.Cells() - before) << (tables_.size() - 1);
    }

    void AddAttribute(const HtmlAttribute& attribute) {
        const auto* const known = std::ranges::find_if(
            kAttributes, [&](const Attribute& it) { return EqualFolded(it.name, attribute.name); });
        if (known == std::end(kAttributes)) return;
        const std::u16string value = AttributeValue(*known, attribute.value);
        if (value.empty()) return;
        ((page_.html += u' ') += known->name) += u"=\"";
        (page_.html += value) += u'"';
    }

    std::u16string AttributeValue(const Attribute& known, std::u16string_view written) {
        constexpr std::size_t kMaxText = 200;
        constexpr std::size_t kMaxWord = 20;
        const std::u16string value = WithoutReferences(written.substr(0, 4000));
        switch (known.kind) {
            case Attribute::Kind::Colour:
                hasColours_ = true;
                return Escaped(value, kMaxWord);
            case Attribute::Kind::Text:
                return Escaped(value, kMaxText);
            case Attribute::Kind::Word:
                return Escaped(value, known.name == u"size" ? 3 : kMaxWord);
            case Attribute::Kind::Number: {
                const int number = NumberOf(value, known.most);
                if (known.name == u"border" && number < 0) return u"1";
                return number < 0 ? u"" : Digits(number);
            }
            case Attribute::Kind::Size: {
                const bool isPercent = value.find(u'%') != kNone;
                const int number = NumberOf(value, isPercent ? 100 : known.most);
                return number < 0 ? u"" : Digits(number) + (isPercent ? u"%" : u"");
            }
            case Attribute::Kind::Link:
                return Escaped(file_.Link(value), kNone);
            case Attribute::Kind::Background:
                return Escaped(Background(value), kNone);
            case Attribute::Kind::Style:
                ++elements_;  // so much it costs
                return Escaped(style_.Declarations(value), kNone);
        }
        return {};
    }

    /// A missing background is none.
    std::u16string Background(std::u16string_view address) {
        if (++pictures_ > kMaxPictures) return {};
        const auto picture = file_.PictureAt(address);
        if (!picture) return {};
        hasColours_ = true;
        return picture->address;
    }

    void AddStyle(std::u16string_view sheet) {
        constexpr std::size_t kMaxSheet = 300'000;
        const std::u16string kept = style_.Sheet(sheet.substr(0, kMaxSheet));
        if (!kept.empty()) ((page_.html += u"<style>") += kept) += u"</style>";
    }

    void AddLinkedStyle() {
        constexpr int kMaxSheets = 20;
        const auto attributes = tokens_.Attributes();
        const std::u16string kind = ValueOf(attributes, u"rel");
        if (!EqualFolded(kind, u"stylesheet") || ++sheets_ > kMaxSheets) return;
        AddStyle(file_.StyleAt(ValueOf(attributes, u"href")));
    }

    /// The sizes that the page gives; a single one keeps the shape.
    void AddPicture() {
        constexpr int kMaxSize = 4000;
        const auto attributes = tokens_.Attributes();
        const std::u16string alternative = ValueOf(attributes, u"alt");
        const auto picture = ++pictures_ > kMaxPictures
                                 ? std::nullopt
                                 : file_.PictureAt(ValueOf(attributes, u"src"));
        if (!picture || picture->width < 1 || picture->height < 1) {
            OpenCell();
            if (!alternative.empty()) page_.html += u"[" + Escaped(alternative, 500) + u"]";
            return;
        }
        int width = std::max(NumberOf(ValueOf(attributes, u"width"), kMaxSize), 0);
        int height = std::max(NumberOf(ValueOf(attributes, u"height"), kMaxSize), 0);
        if (ValueOf(attributes, u"width").find(u'%') != kNone) width = 0;
        if (ValueOf(attributes, u"height").find(u'%') != kNone) height = 0;
        const double shape = static_cast<double>(picture->height) / picture->width;
        if (width == 0) width = height == 0 ? picture->width : static_cast<int>(height / shape);
        width = std::clamp(width, 1, kMaxSize);
        if (height == 0) height = static_cast<int>(width * shape);
        height = std::clamp(height, 1, kMaxSize);
        OpenCell();
        paragraph_ += 50;
        page_.html += u"<img src=\"" + Escaped(picture->address, kNone) + u'?' + Digits(width) +
                      u'x' + Digits(height) + u"\" width=\"" + Digits(width) + u"\" height=\"" +
                      Digits(height) + u'"';
        for (const HtmlAttribute& attribute : attributes) {
            const bool isAlign = EqualFolded(attribute.name, u"align");
            if (isAlign && IsFloat(attribute.value) &&
                (width > kMaxFloatWidth || ++floats_ > kMaxFloats)) {
                continue;
            }
            if (isAlign || EqualFolded(attribute.name, u"title")) AddAttribute(attribute);
        }
        page_.html += u'>';
    }

    /// A frame, or a part of a picture that leads somewhere, as a link.
    void AddPlace(bool isFrame) {
        const auto attributes = tokens_.Attributes();
        const std::u16string address = ValueOf(attributes, isFrame ? u"src" : u"href");
        if (address.empty()) return;
        std::u16string title;
        for (const char16_t* const name : {u"title", u"alt", u"name"}) {
            if (title.empty()) title = HelpTitleOf(ValueOf(attributes, name));
        }
        if (title.empty()) title = address;
        hasFrames_ = hasFrames_ || isFrame;
        OpenCell();
        page_.html += isFrame ? u"<p>" : u" ";
        page_.html += u"<a href=\"" + Escaped(file_.Link(address), kNone) + u"\">" +
                      Escaped(title, 500) + u"</a>";
        if (isFrame) page_.html += u"</p>";
    }

    struct Table {
        std::size_t Cells() const { return rows * columns; }

        std::size_t rows = 0;
        std::size_t columns = 0;
        std::size_t inRow = 0;
    };

    HtmlTokens tokens_;
    HelpSurroundings& file_;
    HelpStyle style_;
    HelpMarkup page_;
    std::vector<Element> open_;
    std::vector<Table> tables_;
    std::array<int, std::size(kElements)> dropped_{};
    std::size_t length_ = 0;
    std::size_t lines_ = 0;
    std::size_t elements_ = 0;
    std::size_t cells_ = 0;
    std::size_t textInTables_ = 0;  ///< each time that it is laid out
    int marks_ = 0;
    int pictures_ = 0;
    int sheets_ = 0;
    int floats_ = 0;
    std::size_t paragraph_ = 0;  ///< the length of the one that is open
    bool hasColours_ = false;
    bool hasFrames_ = false;
    bool isInNoFrames_ = false;
};

}  // namespace

HelpSurroundings::~HelpSurroundings() = default;

HelpMarkup CleanedHelpPage(std::u16string_view html, HelpSurroundings& file) {
    HelpMarkup page = Copy(html, file).Result();
    if (!page.isPlain) return page;
    const std::u16string words = Escaped(HelpWordsOf(html), kMaxLength);
    page = Copy(u"<pre>" + words + u"</pre>", file).Result();
    page.isPlain = true;
    return page;
}

}  // namespace halvek
