#pragma once

#include "hosts/viewer/files/row_writing.h"

#include <QCoreApplication>
#include <QSaveFile>

#include <optional>

namespace viewer {

/// A file, in UTF-8, that takes its place when all is written, or not at all.
class FileTarget final : public RowTarget {
    Q_DECLARE_TR_FUNCTIONS(FileTarget)

public:
    explicit FileTarget(QString path) : path_(std::move(path)) {}

    bool begin() override;
    Taken take(const QString& piece) override;
    bool finish() override;
    void giveUp() override { file_.reset(); }
    QString problem() const override;

private:
    bool fail();

    QString path_;
    QString error_;                 ///< as the system tells it
    std::optional<QSaveFile> file_; ///< lives on the thread that writes
};

/// The most rows that go to the clipboard.
inline constexpr std::size_t mostCopied = 100'000;

/// A text, as it goes to the clipboard: no more of it than programs take from there.
class TextTarget final : public RowTarget {
public:
    /// A single longer piece is taken, too.
    explicit TextTarget(qsizetype most = 64 << 20) : most_(most) {}

    Taken take(const QString& piece) override;

    const QString& text() const { return text_; }

private:
    qsizetype most_;
    QString text_;
};

} // namespace viewer
