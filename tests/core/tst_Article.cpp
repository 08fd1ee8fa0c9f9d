#include "core/drills/ArticleSession.h"
#include "support/TestInstall.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Every character is one wide.
LineMeasure Columns(int width)
{
    return {[](const QString &text) { return static_cast<int>(text.size()); }, width};
}

QString Shown(const std::u32string &line)
{
    return QString::fromStdU32String(line).replace(u"\r\n"_s, u"/"_s);
}

} // namespace

class tst_Article : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CutsIntoTokensAndLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("tokens");
        QTest::addColumn<QStringList>("lines"); // 10 wide
        const auto row = [](const char *name, const QByteArray &bytes, const QString &tokens,
                            const QString &lines) {
            QTest::newRow(name) << bytes << tokens.split(u'|', Qt::SkipEmptyParts)
                                << lines.split(u'|', Qt::SkipEmptyParts);
        };
        row("two spaces", "a  b", u"a|b|/"_s, u"a b/"_s);
        row("line ends", "a\r\nb\nc\rd\n\n", u"a|/|b|/|c|/|d|/|/"_s, u"a/|b/|c/|d/"_s);
        row("empty lines", "\n \nab\n\n\ncd", u"/|/|ab|/|/|/|cd|/"_s, u"ab/|cd/"_s);
        row("blanks that no key types", "\ta\tb\xC2\xA0\x01z", u"a|b|z|/"_s, u"a b z/"_s);
        row("equal width is too wide", "1234 678 0 abcd ef", u"1234|678|0|abcd|ef|/"_s,
            u"1234 678/|0 abcd/|ef/"_s);
        row("a wide word is cut", "0123456789abc d 012345678 e", u"0123456789abc|d|012345678|e|/"_s,
            u"0123456789/|d/|012345678/|e/"_s);
        row("not through a character", QByteArray("012345678\xF0\x9D\x92\xB3"), u"012345678𝒳|/"_s,
            u"012345678/"_s);
        row("marks where files were joined",
            "\xEF\xBB\xBF\xEF\xBB\xBF"
            "a\xEF\xBB\xBF b",
            u"a|b|/"_s, u"a b/"_s);
        row("GB18030", "\xC4\xE3 \xBA\xC3", u"你|好|/"_s, u"你 好/"_s);
        row("UTF-16",
            QByteArray("\xFF\xFE"
                       "a\0 \0b\0",
                       8),
            u"a|b|/"_s, u"a b/"_s);
        row("nothing", "", {}, {});
        row("only empty lines", "\r\n \r\n\t\n", {}, {});
    }

    void CutsIntoTokensAndLines()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, tokens);
        QFETCH(QStringList, lines);
        const TestInstall install;
        Article article;
        QCOMPARE(article.InitArticleData(install.Write(u"a.txt"_s, bytes)), !tokens.isEmpty());
        QStringList found;
        for (int i = 0; i < article.TokenCount(); ++i)
            found += article.IsLineBreak(i) ? u"/"_s : article.Token(i).toString();
        QCOMPARE(found, tokens);
        QVERIFY(!article.InitArticleData(install.Native(u"missing.txt"_s)));
        QCOMPARE(article.TokenCount(), tokens.size());

        QStringList built;
        int index = 0;
        for (std::u32string line; !(line = article.BuildTextLine(index, Columns(10))).empty();)
            built += Shown(line);
        QCOMPARE(built, lines);
        QCOMPARE(index, tokens.size());
    }

    void Types_data()
    {
        QTest::addColumn<QList<int>>("forms");
        QTest::addColumn<QString>("keys");     // < Backspace, / Enter
        QTest::addColumn<QString>("outcome");  // what each did
        QTest::addColumn<QList<int>>("place"); // line, column, word, total, correct
        const auto row = [](const char *name, const QList<int> &forms, const QString &keys,
                            const QString &outcome, const QList<int> &place) {
            QTest::newRow(name) << forms << keys << outcome << place;
        };
        const QList<int> all{3, 4, 5};
        row("right and wrong", all, u"aX"_s, u"+-"_s, {0, 2, 0, 2, 1});
        row("space counts a word", all, u"ab c"_s, u"++++"_s, {0, 4, 1, 4, 4});
        row("Enter in a line", all, u"a/"_s, u"+."_s, {0, 1, 0, 1, 1});
        row("only Enter or Space end a line", all, u"ab cdx/"_s, u"+++++.+"_s, {1, 0, 1, 6, 6});
        row("Space ends a line", all, u"ab cd "_s, u"++++++"_s, {1, 0, 1, 6, 6});
        row("back at a line end", all, u"ab cd<"_s, u"+++++<"_s, {0, 4, 1, 5, 5});
        row("back at the start", all, u"<a<<"_s, u".+<."_s, {0, 0, 0, 1, 1});
        row("no way back into a pair", {3}, u"ab cd/<"_s, u"++++++."_s, {1, 0, 1, 6, 6});
        row("back over a line end", {4}, u"ab cd/<<"_s, u"++++++<<"_s, {0, 4, 1, 6, 6});
        row("back onto the line feed", {5}, u"ab cd/<"_s, u"++++++<"_s, {0, 6, 1, 6, 6});
        row("over the carriage return", {5}, u"ab cd/<<"_s, u"++++++<<"_s, {0, 4, 1, 6, 6});
        row("nothing is right on a line feed", {5}, u"ab cd/</x"_s, u"++++++<.-"_s, {1, 0, 1, 7, 6});
        row("Escape in a field", {3}, u"\u001b"_s, u"."_s, {0, 0, 0, 0, 0});
        row("Escape over the text", {5}, u"\u001b"_s, u"-"_s, {0, 1, 0, 1, 0});
    }

    void Types()
    {
        QFETCH(QList<int>, forms);
        QFETCH(QString, keys);
        for (const int form : forms) {
            ArticleSession session = Begin(form, "ab cd\nef\ngh\nij\nkl\nmn\n");
            QString did;
            for (const char32_t key : keys.toStdU32String()) {
                const auto outcome = session.TypeCharacter(key == U'<' ? 8 : key == U'/' ? U'\r' : key);
                did += u".+-<"_s.at(static_cast<int>(outcome.kind));
            }
            QTEST(did, "outcome");
            QTEST(QList<int>({session.CurrentLine(), session.Column(), session.GetTextIndexAt(),
                              session.TotalKeys(), session.CorrectKeys()}),
                  "place");
        }
    }

    void TurnsPagesAndEnds()
    {
        // Form, what happens after each line of one word (n: the next page, D: done), the word reached then.
        using Row = std::tuple<int, QString, int>;
        for (const auto &[form, ends, index] :
             {Row{3, u" D"_s, 0}, Row{3, u"    D"_s, 14}, Row{3, u"    nD"_s, 15}, Row{4, u"   n D"_s, 17},
              Row{5, u"         nD"_s, 30}}) {
            ArticleSession session = Begin(form, QByteArray("a\n\n").repeated(ends.size()).chopped(1));
            QString found;
            while (found.size() < ends.size()) {
                session.TypeCharacter(U'a');
                found += u" nD"_s.at(static_cast<int>(session.TypeCharacter(U'\r').then));
            }
            QCOMPARE(found, ends);
            QCOMPARE(session.GetTextIndexAt(), index);
            // Once more, when there is nothing to type any more.
            QCOMPARE(session.TypeCharacter(U'a').then, ArticleSession::Outcome::Then::ArticleDone);
            const int correct = session.CorrectKeys();
            session.Restart();
            QCOMPARE(session.GetTextIndexAt(), 0);
            QCOMPARE(session.CorrectKeys(), correct);
        }
    }

private:
    static ArticleSession Begin(int form, const QByteArray &bytes)
    {
        const TestInstall install;
        Article article;
        ArticleSession session;
        if (!article.InitArticleData(install.Write(u"a.txt"_s, bytes)))
            qFatal("the article is empty");
        session.SetArticle(std::move(article));
        session.GoOnIn(DisplayFormOf(form), Columns(10));
        return session;
    }
};

QTEST_GUILESS_MAIN(tst_Article)
#include "tst_Article.moc"
