#include "system/PaperRules.h"

#include <QSet>

#include <algorithm>

#include <limits>

namespace kesto::ui::config::papertable {

namespace {

QChar halfWidth(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'０' && u <= u'９')
        return QChar(u'0' + (u - u'０'));
    if (u == u'－' || u == u'−')
        return u'-';
    if (u == u'＋')
        return u'+';
    return c;
}

QString cell(const QStringList& texts, int column)
{
    return column < texts.size() ? texts[column] : QString();
}

// The first row whose name an earlier row has.
SProblem duplicateName(const std::vector<QStringList>& rows)
{
    QSet<QString> seen;
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const QString name = cell(rows[r], 0);
        if (seen.contains(name))
            return {SProblem::DuplicateName, static_cast<int>(r), 0, name};
        seen.insert(name);
    }
    return {};
}

} // namespace

int readInteger(const QString& text)
{
    const QString trimmed = text.trimmed();
    int at = 0;
    bool negative = false;
    if (at < trimmed.size() && (halfWidth(trimmed[at]) == u'-' || halfWidth(trimmed[at]) == u'+'))
        negative = halfWidth(trimmed[at++]) == u'-';
    long long value = 0;
    for (; at < trimmed.size(); ++at) {
        const QChar c = halfWidth(trimmed[at]);
        if (c < u'0' || c > u'9')
            break;
        value = std::min<long long>(value * 10 + (c.unicode() - u'0'),
                                    std::numeric_limits<int>::max() + 1LL);
    }
    value = negative ? -value : value;
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

std::optional<int> readDimension(const QString& text)
{
    QString digits;
    for (QChar c : text.trimmed())
        digits += halfWidth(c);
    bool ok = false;
    const int value = digits.toInt(&ok);
    if (!ok || value < 1)
        return std::nullopt;
    return value;
}

namespace size {

setting::SPaperSize newPaperSize()
{
    return {L"新サイズ", 1, 1};
}

QStringList rowTexts(const setting::SPaperSize& size)
{
    return {QString::fromStdWString(size.name), QString::number(size.height),
            QString::number(size.width)};
}

setting::SPaperSize sizeOfRow(const QStringList& texts)
{
    return {cell(texts, ColumnName).toStdWString(), readInteger(cell(texts, ColumnHeight)),
            readInteger(cell(texts, ColumnWidth))};
}

SProblem check(const std::vector<QStringList>& rows)
{
    for (std::size_t r = 0; r < rows.size(); ++r) {
        const int row = static_cast<int>(r);
        if (cell(rows[r], ColumnName).isEmpty())
            return {SProblem::NoName, row, ColumnName, {}};
        if (readInteger(cell(rows[r], ColumnHeight)) < 1)
            return {SProblem::HeightTooSmall, row, ColumnHeight, {}};
        if (readInteger(cell(rows[r], ColumnWidth)) < 1)
            return {SProblem::WidthTooSmall, row, ColumnWidth, {}};
    }
    return duplicateName(rows);
}

} // namespace size

namespace frame {

setting::SPaperFrame newPaperFrame(const std::wstring& name)
{
    setting::SPaperFrame frame;
    frame.name = name;
    frame.dimensions.fill(1);
    frame.drawFrame = frame.innerFrame = frame.cutLine = true;
    return frame;
}

QStringList rowTexts(const setting::SPaperFrame& frame, const QString& yes, const QString& no)
{
    QStringList texts{QString::fromStdWString(frame.name)};
    for (int value : frame.dimensions)
        texts << QString::number(value);
    for (bool on : {frame.drawFrame, frame.innerFrame, frame.cutLine})
        texts << (on ? yes : no);
    return texts;
}

setting::SPaperFrame frameOfRow(const QStringList& texts, const QString& yes)
{
    setting::SPaperFrame frame;
    frame.name = cell(texts, ColumnName).toStdWString();
    for (int i = 0; i < kDimensionColumns; ++i)
        frame.dimensions[static_cast<std::size_t>(i)] =
            readInteger(cell(texts, ColumnFirstDimension + i));
    frame.drawFrame = cell(texts, ColumnDrawFrame) == yes;
    frame.innerFrame = cell(texts, ColumnInnerFrame) == yes;
    frame.cutLine = cell(texts, ColumnCutLine) == yes;
    return frame;
}

SProblem check(const std::vector<QStringList>& rows)
{
    if (rows.empty())
        return {SProblem::NoRows, -1, ColumnName, {}};
    for (std::size_t r = 0; r < rows.size(); ++r) {
        if (cell(rows[r], ColumnName).isEmpty())
            return {SProblem::NoName, static_cast<int>(r), ColumnName, {}};
    }
    return duplicateName(rows);
}

QString dimensionLetter(int index)
{
    return QString(QChar(u'A' + index));
}

} // namespace frame

} // namespace kesto::ui::config::papertable
