#include "utility/ReadReport.h"

#include <QCoreApplication>
#include <QStringList>

namespace kesto::utility {

namespace {
constexpr std::size_t kMaxListed = 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("kesto::utility::CReadReport", text);
}
} // namespace

void CReadReport::refuse(const QString& reason, qint64 line)
{
    m_refused = true;
    if (!reason.isEmpty())
        m_problems.push_back({line, reason});
}

void CReadReport::stop(qint64 line, const QString& reason)
{
    m_problems.push_back({line, reason});
}

void CReadReport::skip(qint64 line, const QString& what)
{
    m_problems.push_back({line, what});
}

QString CReadReport::details() const
{
    QStringList lines;
    for (const SProblem& problem : m_problems) {
        if (lines.size() == kMaxListed) {
            lines << tr("ほか %1 件").arg(m_problems.size() - kMaxListed);
            break;
        }
        lines << (problem.line > 0 ? tr("%1 行目: %2").arg(problem.line).arg(problem.text)
                                   : problem.text);
    }
    return lines.join(u'\n');
}

} // namespace kesto::utility
