#include "hosts/viewer/files/row_targets.h"

namespace viewer {

bool FileTarget::begin()
{
    file_.emplace(path_);
    return file_->open(QIODevice::WriteOnly) || fail();
}

RowTarget::Taken FileTarget::take(const QString& piece)
{
    if (file_->write(piece.toUtf8()) >= 0) return Taken::goOn;
    fail();
    return Taken::failed;
}

/// This takes seconds where much is still on its way to a disk, or to another machine.
bool FileTarget::finish()
{
    if (!file_->commit()) return fail();
    file_.reset();
    return true;
}

bool FileTarget::fail()
{
    error_ = file_->errorString();
    file_.reset();
    return false;
}

QString FileTarget::problem() const
{
    return error_.isEmpty() ? QString() : tr("%1 can't be written: %2").arg(path_, error_);
}

RowTarget::Taken TextTarget::take(const QString& piece)
{
    if (!text_.isEmpty() && text_.size() + piece.size() > most_) return Taken::enough;
    text_ += piece;
    return Taken::goOn;
}

} // namespace viewer
