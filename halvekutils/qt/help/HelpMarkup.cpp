// SPDX-License-Identifier: MIT
#include <halvekutils/qt/help/HelpMarkup.h>

#include <QHash>
#include <QRegularExpression>
#include <QStringView>

#include <algorithm>

namespace halvek {

namespace {

constexpr qsizetype kMaxPageLength = 500'000;
// Layout time doubles with each table inside a table, and is quadratic in the depth of other
// elements.
constexpr int kDeepestTable = 10;
constexpr int kDeepest = 200;

/// False for elements whose end tags may be left out: they do not show depth.
bool Nests(const QString& name) {
    static constexpr const char* kFlat[] = {"p",   "li",    "td",   "th",   "tr",   "dt",
                                            "dd",  "br",    "hr",   "img",  "meta", "link",
                                            "col", "input", "html", "head", "body", "thead",
                                            "tr",  "tbody", "base", "area", "param"};
    return !name.isEmpty() && name[0].isLetter() &&
           std::ranges::none_of(kFlat,
                                [&](const char* flat) { return name == QLatin1String(flat); });
}

/// Copies tags and text, except tags that are nested too deep.
class Copy {
  public:
    explicit Copy(const QString& html) : html_(html) { result_.reserve(html.size()); }

    QString Result() {
        for (qsizetype at = 0; at < html_.size();) {
            const qsizetype tag = Found(QLatin1Char('<'), at);
            result_ += QStringView(html_).mid(at, tag - at);
            at = tag;
            if (tag < html_.size()) at = Found(QLatin1Char('>'), tag) + 1;
            if (tag < html_.size()) Add(QStringView(html_).mid(tag, at - tag));
        }
        return result_;
    }

  private:
    qsizetype Found(QLatin1Char character, qsizetype from) const {
        const qsizetype at = html_.indexOf(character, from);
        return at < 0 ? html_.size() : at;
    }

    void Add(QStringView tag) {
        const bool isEnd = tag.startsWith(QLatin1String("</"));
        QString name;
        for (qsizetype i = isEnd ? 2 : 1; i < tag.size() && tag[i].isLetterOrNumber(); ++i) {
            name += tag[i].toLower();
        }
        if (!Nests(name)) {
            // Qt ignores a style sheet without a type.
            const bool isPlainLink = name == QLatin1String("link") &&
                                     !tag.contains(QLatin1String("type"), Qt::CaseInsensitive);
            result_ += isPlainLink ? tag.first(5) : tag;
            if (!isPlainLink) return;
            result_ += QLatin1String(" type=\"text/css\"");
            result_ += tag.mid(5);
        } else if (isEnd) {
            AddEnd(name, tag);
        } else {
            AddStart(name, tag);
        }
    }

    void AddStart(const QString& name, QStringView tag) {
        Open& open = open_[name];
        const bool isTooDeep =
            depth_ >= kDeepest || (name == QLatin1String("table") && open.kept >= kDeepestTable);
        if (isTooDeep) {
            ++open.dropped;
            return;
        }
        ++open.kept;
        ++depth_;
        result_ += tag;
    }

    void AddEnd(const QString& name, QStringView tag) {
        Open& open = open_[name];
        if (open.dropped > 0) {
            --open.dropped;
            return;
        }
        result_ += tag;
        if (open.kept == 0) return;
        --open.kept;
        --depth_;
    }

    struct Open {
        int kept = 0;
        int dropped = 0;
    };

    const QString& html_;
    QString result_;
    QHash<QString, Open> open_;
    int depth_ = 0;
};

}  // namespace

QString SanitizedHtml(const QString& html) {
    static const QRegularExpression hugeSpace(
        QStringLiteral(
            "\\b((?:border|cell|margin|padding|text-indent)[a-z-]*\\s*[=:]\\s*[\"']?\\d{3})\\d+"),
        QRegularExpression::CaseInsensitiveOption);
    QString tamed = html.left(kMaxPageLength);
    tamed.replace(hugeSpace, QStringLiteral("\\1"));
    return Copy(tamed).Result();
}

}  // namespace halvek
