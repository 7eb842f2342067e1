#pragma once

#include <QString>

#include <vector>

namespace kesto::utility {

// What reading one file met, for one message about it: whether anything of it could be used,
// where reading stopped and the entries it left out. Texts are Japanese, for the user.
class CReadReport {
public:
    struct SProblem {
        qint64 line = 0; // 0 when no line applies
        QString text;
    };

    // Nothing of the file is used: it cannot be opened, is too large, or is not such a file.
    // An empty reason adds none (the problems already say why).
    void refuse(const QString& reason, qint64 line = 0);
    // Reading ended early at the line; what came before it is used.
    void stop(qint64 line, const QString& reason);
    // One entry that could not be read was left out.
    void skip(qint64 line, const QString& what);

    bool isComplete() const { return m_problems.empty(); }
    bool isRefused() const { return m_refused; }
    const std::vector<SProblem>& problems() const { return m_problems; }

    // The problems, one a line ("12 行目: ..."); a long list ends with the count of the rest.
    QString details() const;

private:
    std::vector<SProblem> m_problems;
    bool m_refused = false;
};

} // namespace kesto::utility
