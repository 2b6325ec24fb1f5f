#include "hosts/desktop/mnemonics.h"

#include <QSet>

namespace {

/// The letter that a caption names by an "&" of its own, as a place in the caption; -1 for none.
qsizetype ownLetter(const QString& caption)
{
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] != QLatin1Char('&')) continue;
        if (caption[at + 1] != QLatin1Char('&')) return at + 1;
        ++at;
    }
    return -1;
}

/// The first free letter, those at the start of a word before others.
qsizetype freeLetter(const QString& caption, const QSet<QChar>& taken)
{
    for (const bool wordStarts : {true, false})
        for (qsizetype at = 0; at < caption.size(); ++at) {
            const bool start = at == 0 || caption[at - 1].isSpace();
            if (wordStarts && !start) continue;
            if (caption[at].isLetterOrNumber() && !taken.contains(caption[at].toLower())) return at;
        }
    return -1;
}

} // namespace

QStringList withMnemonics(const QStringList& captions)
{
    QSet<QChar> taken;
    QStringList marked = captions;
    QList<bool> settled(captions.size(), false);
    for (qsizetype place = 0; place < captions.size(); ++place) {
        const auto letter = ownLetter(captions[place]);
        if (letter < 0) continue;
        const QChar key = captions[place][letter].toLower();
        settled[place] = !taken.contains(key);
        if (settled[place])
            taken.insert(key);
        else
            marked[place].remove(letter - 1, 1);
    }
    for (qsizetype place = 0; place < captions.size(); ++place) {
        if (settled[place]) continue;
        const auto letter = freeLetter(marked[place], taken);
        if (letter < 0) continue;
        taken.insert(marked[place][letter].toLower());
        marked[place].insert(letter, QLatin1Char('&'));
    }
    return marked;
}
