#include "plugin/skinfont.h"

#include <QFontInfo>
#include <QRegularExpression>

namespace
{

constexpr double kSmallestPoints = 9;
constexpr double kLargestPoints = 16;
constexpr double kLargestOnButtons = 13; // more does not fit their height, which stays
constexpr double kPixelsAtSmallest = 12;

} // namespace

QString SkinFont::fitted(const QString& sheet, const QFont& desktop)
{
    static const QRegularExpression size(QStringLiteral("font-size:\\s*([0-9.]+)px"));
    const double points = qBound(kSmallestPoints, QFontInfo(desktop).pointSizeF(), kLargestPoints);
    QString result;
    int end = 0;
    for (auto matches = size.globalMatch(sheet); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const double fittedSize = match.captured(1).toDouble() * points / kPixelsAtSmallest;
        result += sheet.mid(end, match.capturedStart() - end) +
                  QStringLiteral("font-size: %1pt").arg(fittedSize, 0, 'f', 2);
        end = match.capturedEnd();
    }
    result += sheet.mid(end);
    if (points > kLargestOnButtons)
        result += QStringLiteral("\nQPushButton { font-size: %1pt; }").arg(kLargestOnButtons);
    return result;
}
