#include "hosts/common/look/mnemonics.h"

#include <QSet>

#include <algorithm>

namespace {

/// The letter that a caption names by an "&" of its own, as an index into the caption; -1 for none.
qsizetype ownLetter(const QString& caption)
{
    for (qsizetype at = 0; at + 1 < caption.size(); ++at) {
        if (caption[at] != QLatin1Char('&')) continue;
        if (caption[at + 1] != QLatin1Char('&')) return at + 1;
        ++at;
    }
    return -1;
}

/// Whether a keyboard may have no key for a letter, as for those of Japanese.
bool isWithoutKey(QChar letter)
{
    return letter.category() == QChar::Letter_Other;
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

/// Takes the first mark of a letter away, with the letter where it stands behind the text for the
/// mark alone: "(&X)".
void unmark(QString& caption, qsizetype letter)
{
    const bool apart = letter >= 2 && caption[letter - 2] == QLatin1Char('(') &&
                       letter + 1 < caption.size() && caption[letter + 1] == QLatin1Char(')');
    if (apart)
        caption.remove(letter - 2, 4);
    else
        caption.remove(letter - 1, 1);
}

/// Puts a free Latin letter behind the text, before dots and a colon: "(&X)". Its own ones come
/// first.
void markBehind(QString& caption, QSet<QChar>& taken)
{
    const QString letters = caption + QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    const auto found = std::find_if(letters.begin(), letters.end(), [&](QChar letter) {
        return letter.isLetter() && !isWithoutKey(letter) && letter.unicode() < 0x80 &&
               !taken.contains(letter.toLower());
    });
    if (found == letters.end()) return;
    taken.insert(found->toLower());
    qsizetype end = caption.size();
    while (end > 0 &&
           (caption[end - 1] == QLatin1Char('.') || caption[end - 1] == QLatin1Char(':')))
        --end;
    caption.insert(end, QStringLiteral("(&%1)").arg(found->toUpper()));
}

} // namespace

QStringList withMnemonics(const QStringList& captions)
{
    QSet<QChar> taken;
    QStringList marked = captions;
    QList<bool> settled(captions.size(), false);
    for (qsizetype index = 0; index < captions.size(); ++index) {
        const auto letter = ownLetter(captions[index]);
        if (letter < 0) continue;
        const QChar key = captions[index][letter].toLower();
        settled[index] = !taken.contains(key);
        if (settled[index])
            taken.insert(key);
        else
            unmark(marked[index], letter);
    }
    for (qsizetype index = 0; index < captions.size(); ++index) {
        if (settled[index]) continue;
        if (std::any_of(marked[index].begin(), marked[index].end(), isWithoutKey)) {
            markBehind(marked[index], taken);
            continue;
        }
        const auto letter = freeLetter(marked[index], taken);
        if (letter < 0) continue;
        taken.insert(marked[index][letter].toLower());
        marked[index].insert(letter, QLatin1Char('&'));
    }
    return marked;
}

QString withoutMnemonic(QString caption)
{
    for (auto letter = ownLetter(caption); letter >= 0; letter = ownLetter(caption))
        unmark(caption, letter);
    return caption.replace(QLatin1String("&&"), QLatin1String("&"));
}
