#pragma once

#include <QStringList>

/// The captions of one menu or page, each with a letter to press that no other has. A caption that
/// names its letter keeps it where it can; one whose letters are all taken goes without. One in
/// letters that a keyboard may not have gets another behind it: "(&X)".
QStringList withMnemonics(const QStringList& captions);

/// A caption as it is read: without its mark, and without a letter that stands for the mark alone.
QString withoutMnemonic(QString caption);
