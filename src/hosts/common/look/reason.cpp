#include "hosts/common/look/reason.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>

namespace {

/// The standard texts that files and folders give.
class Reasons {
    Q_DECLARE_TR_FUNCTIONS(Reasons)

public:
    static constexpr const char* texts[] = {
        QT_TR_NOOP("Device I/O error"),       QT_TR_NOOP("Disk full"),
        QT_TR_NOOP("File already exists"),    QT_TR_NOOP("File not found"),
        QT_TR_NOOP("Input past end of file"), QT_TR_NOOP("Out of memory"),
        QT_TR_NOOP("Out of string space"),    QT_TR_NOOP("Path not found"),
        QT_TR_NOOP("Path/File access error"), QT_TR_NOOP("Permission denied"),
    };
};

} // namespace

QString reasonOf(const RunTimeError& error)
{
    for (const char* text : Reasons::texts)
        if (error.description() == text) return Reasons::tr(text);
    return QString::fromStdString(error.description());
}
