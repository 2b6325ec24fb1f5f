#include "hosts/common/look/mnemonics.h"

#include <gtest/gtest.h>

namespace desktop {

namespace {

TEST(WithMnemonics, AreUniqueAndKeepTheLettersThatCaptionsName)
{
    struct Case {
        const char* because;
        QStringList captions;
        QStringList expected;
    };
    const Case cases[] = {
        {"the first letter", {"Open", "Close"}, {"&Open", "&Close"}},
        {"the next word when it is taken", {"Open Log", "Open File"}, {"&Open Log", "Open &File"}},
        {"any letter when all words are taken", {"Log", "Lag"}, {"&Log", "L&ag"}},
        {"a named letter stays and others move", {"Reset", "&Refresh"}, {"R&eset", "&Refresh"}},
        {"a letter named twice moves", {"&Next", "&New"}, {"&Next", "N&ew"}},
        {"a doubled sign names none", {"A && B", "A"}, {"&A && B", "A"}},
        {"no letter is left", {"a", "A"}, {"&a", "A"}},
        {"nothing", {""}, {""}},
        {"Japanese letters have no keys", {"開く", "閉じる"}, {"開く(&A)", "閉じる(&B)"}},
        {"dots and colon stand behind", {"開く...", "名前:"}, {"開く(&A)...", "名前(&B):"}},
        {"a Latin letter of the text is the nearest", {"CSV の行"}, {"CSV の行(&C)"}},
        {"one that was named twice gives way",
         {"検索(&B)", "参照(&B)..."},
         {"検索(&B)", "参照(&A)..."}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, withMnemonics(c.captions));
    }
}

TEST(WithoutMnemonic, GivesTheCaptionAsItIsRead)
{
    EXPECT_EQ(QStringLiteral("Find Next"), withoutMnemonic("Find &Next"));
    EXPECT_EQ(QString("検索..."), withoutMnemonic("検索(&F)..."));
    EXPECT_EQ(QStringLiteral("Cut & paste"), withoutMnemonic("&Cut && paste"));
    EXPECT_EQ(QStringLiteral("plain"), withoutMnemonic("plain"));
    EXPECT_EQ(QStringLiteral("at the end &"), withoutMnemonic("at the end &"));
}

} // namespace

} // namespace desktop
