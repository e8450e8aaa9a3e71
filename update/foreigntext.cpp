#include "update/foreigntext.h"

#include <QRegularExpression>

namespace {

constexpr int maximumTags = 100;
constexpr int maximumDepthOfLists = 3;

// A list that begins or ends is caught as such. The values of a style have no parenthesis, since an address stands in
// one.
const QString simpleTag = QStringLiteral(
    R"re(\G<(?:(?<begin>[uo]l)|(?<end>/[uo]l)|/?(?:b|strong|i|em|u|s|code|tt|p|br|a|span|font|h[1-6]|li)))re"
    R"re((?:\s+(?:(?:href|color|face)=(?:"[^"<>]*"|'[^'<>]*'|[^\s"'<>]+))re"
    R"re(|style=(?:"(?&style)"|'(?&style)')))*\s*/?>)re"
    R"re((?(DEFINE)(?<style>(?&rule)(?:;(?&rule))*;?\s*)))re"
    R"re((?(DEFINE)(?<rule>\s*(?:color|background-color|font-weight|font-style|text-decoration)\s*:[\w #%.,-]*)))re");

} // namespace

QString harmlessHtml(const QString &html)
{
    static const QRegularExpression simple(simpleTag, QRegularExpression::CaseInsensitiveOption);
    QString harmless;
    int tags = 0;
    int depth = 0;
    for (int i = 0; i < html.size();) {
        const int next = static_cast<int>(html.indexOf(QLatin1Char('<'), i));
        harmless += html.mid(i, next < 0 ? -1 : next - i);
        if (next < 0)
            break;

        const auto match = simple.match(html, next);
        const bool beginsList = match.capturedLength(QStringLiteral("begin")) > 0;
        if (match.hasMatch() && tags < maximumTags && !(beginsList && depth == maximumDepthOfLists)) {
            ++tags;
            if (beginsList)
                ++depth;
            else if (match.capturedLength(QStringLiteral("end")) > 0 && depth > 0)
                --depth;
            harmless += match.captured();
            i = static_cast<int>(match.capturedEnd());
        } else {
            harmless += QLatin1String("&lt;");
            i = next + 1;
        }
    }
    return harmless;
}

QString shortened(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    const bool cutsPair = length > 0 && text.at(length - 1).isHighSurrogate();
    return text.left(cutsPair ? length - 1 : length) + QChar(0x2026);
}
