#include "typography.h"

#include <QRegularExpression>

namespace sarne::disc {
namespace {

struct Rule {
    const char16_t* pattern;
    const char16_t* complaint;
};

constexpr Rule kRules[] = {
    {u"[\"\u201d']", u"straight or foreign quotation marks; Czech ones are \u201e and \u201c"},
    {u"\\.\\.\\.", u"three full stops; the ellipsis is one character"},
    {u"(^|\\s)-(\\s|$)", u"a hyphen between blanks; the dash is \u2013"},
    {u"\\d-\\d", u"a hyphen between numbers; the dash is \u2013"},
    {u"\\d\\.\\d", u"a decimal point; Czech has a comma"},
    {u"\\d°", u"no blank in front of the degree sign"},
    {u"°\\s", u"a blank behind the degree sign"},
    {u"\\d%", u"no blank in front of the percent sign"},
    {u"\\d/\\d", u"a fraction with a slash; write a decimal number"},
    {u"\\S  +\\S", u"doubled blanks"},
    {u"\\s[,;:!?]", u"a blank in front of punctuation"},
    {u"[,;][^\\s\\d]", u"no blank behind punctuation"},
};

}  // namespace

void checkTypography(const QString& text, const Place& place, Problems& problems) {
    for (const Rule& rule : kRules) {
        const QRegularExpression pattern(QString::fromUtf16(rule.pattern));
        const auto found = pattern.match(text);
        if (found.hasMatch())
            problems.error(place, QString::fromUtf16(rule.complaint) + QStringLiteral(": \"") +
                                      text.mid(qMax(0, found.capturedStart() - 12), 30).trimmed() + u'"');
    }
    if (text.count(QChar(0x201e)) != text.count(QChar(0x201c)))
        problems.error(place, QStringLiteral("quotation marks that do not pair"));
}

QString withUnbreakableBlanks(QString text) {
    // A link phrase or another font takes the whole word in which it begins, so nothing is joined to its
    // front.
    static const QRegularExpression preposition(
        QStringLiteral("(?<![\\p{L}\\p{N}])([ksvzouaiKSVZOUAI]) (?=[^\\s\\[*_])"));
    static const QRegularExpression number(QStringLiteral("(\\d[.]?) (?=[\\p{L}°%])"));
    const QString unbreakable = QStringLiteral("\\1\u00a0");
    return text.replace(preposition, unbreakable).replace(number, unbreakable);
}

}  // namespace sarne::disc
