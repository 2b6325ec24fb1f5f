#pragma once

#include <QStringList>

/// The captions of one menu or page, each with a letter to press that no other has. A caption that
/// names its letter keeps it where it can; one whose letters are all taken goes without.
QStringList withMnemonics(const QStringList& captions);
