// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/page_charset.h"
#include "output/rich_text.h"
#include "output/text_loading.h"
#include "platform/runtime_error.h"
#include "support/error_of.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// What a file of words becomes, whatever stands in it.
class TextLoadingTest : public QObject
{
    Q_OBJECT

private:
    static void row(const char *name, const QByteArray &bytes, const QString &text)
    {
        QTest::newRow(name) << bytes << text;
    }

private slots:
    void kinds()
    {
        const QHash<QString, TextKind> kinds{{u"C:\\a\\Liste.LEX"_s, TextKind::Dictionary},
                                             {u"a.b.Txt"_s, TextKind::Plain},
                                             {u"a.rtf"_s, TextKind::Rich},
                                             {u"a.htm"_s, TextKind::Page},
                                             {u"a.Html"_s, TextKind::Page},
                                             {u"a.htmlx"_s, TextKind::Other},
                                             {u"C:\\ordner.txt\\txt"_s, TextKind::Other},
                                             {u""_s, TextKind::Other}};
        for (auto kind = kinds.cbegin(); kind != kinds.cend(); ++kind)
            QVERIFY2(textKindOf(kind.key()) == kind.value(), qPrintable(kind.key()));
    }

    void richTexts_data()
    {
        columns<QByteArray, QString>("bytes", "text");
        row("text", "{\\rtf1\\ansi Haus\\par\nund \\b Hof\\b0 .\\par}", u"Haus\nund Hof."_s);
        row("tables of a document",
            "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red1;}{\\*\\generator x{y};}{\\info{\\title t}}a}",
            u"a"_s);
        row("letters by number", "{\\rtf1 \\'fcb\\'e4\\u223 ?\\u8364\\'80.\\uc2\\u-3 xyz\\uc0\\u65 b}",
            u"übäß€.\uFFFDzAb"_s);
        row("a fallback ends with its group", "{\\rtf1{\\uc5\\u65 x}yz}", u"Ayz"_s);
        row("signs", "{\\rtf1 a\\tab b\\~c\\_d\\-e\\\\\\{\\}\\line\\ldblquote f\\rdblquote}",
            u"a\tb\u00A0c-de\\{}\n“f”"_s);
        row("a table's row", "{\\rtf1\\trowd\\intbl a\\cell b\\cell\\row c}", u"a\tb\t\nc"_s);
        row("field, picture, object, note",
            "{\\rtf1 a{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt b}}{\\pict "
            "0102}{\\object{\\*\\objdata 01}{\\result "
            "c}}{\\footnote d}e}",
            u"abce"_s);
        row("hidden", "{\\rtf1 a{\\v b}c\\v d\\v0 e\\v f\\plain g}", u"aceg"_s);
        row("binary data are jumped over", QByteArray("{\\rtf1 a{\\pict\\bin4 }}}}}b}"), u"ab"_s);
        row("and end with the file", "{\\rtf1 a\\bin999999999999 bcd}", u"a"_s);
        row("another page", "{\\rtf1\\ansi\\ansicpg1250 \\'e8\\'f8}", u"čř"_s);
        row("an unknown page", "{\\rtf1\\ansicpg4711 \\'e4}", u"ä"_s);
        row("nothing is closed", "{\\rtf1{{{a\\'e", u"ae"_s);
        row("too much is closed", "{\\rtf1 a}}}b", u"a"_s);
        row("ends in a word", "{\\rtf1 a\\", u"a"_s);
        row("NULs and controls", QByteArray("{\\rtf1 a\0\x01 b\\'00\\u0 c\n}", 22), u"a b"_s);
        row("no rich text", "Haus", u"Haus"_s);
        row("depth", QByteArray("{\\rtf1 a") + QByteArray(300'000, '{') + "b", u"ab"_s);
    }
    void richTexts()
    {
        QFETCH(QByteArray, bytes);
        QTEST(decodeLoadedText(bytes, TextKind::Plain).text, "text");
    }

    void pages_data()
    {
        columns<QByteArray, QString>("bytes", "text");
        row("UTF-8 that says nothing", "\xC3\xA4\xE2\x82\xAC\xCE\xB1", u"ä€α"_s);
        row("else the code page", "\xE4\x80\xC3\xA4", u"ä€Ã¤"_s);
        row("named", "<META CharSet = 'windows-1252'>\xC3\xA4", u"<META CharSet = 'windows-1252'>Ã¤"_s);
        row("named as of old", "<meta http-equiv=a content=\"text/html; charset=UTF-8\">\xC3\xA4\xE4",
            u"<meta http-equiv=a content=\"text/html; charset=UTF-8\">ä\uFFFD"_s);
        row("XML", "<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>\xA4",
            u"<?xml version=\"1.0\" encoding=\"ISO-8859-15\"?>€"_s);
        row("another alphabet", "<meta charset=windows-1251>\xE4", u"<meta charset=windows-1251>д"_s);
        row("in a comment", "<!-- <meta charset=utf-8> -->\xE4", u"<!-- <meta charset=utf-8> -->ä"_s);
        row("unknown", "<meta charset=unsinn>\xC3\xA4", u"<meta charset=unsinn>ä"_s);
        row("impossible", "<meta charset=utf-16>\xC3\xA4", u"<meta charset=utf-16>ä"_s);
        row("a mark is stronger", "\xEF\xBB\xBF<meta charset=latin1>\xC3\xA4", u"<meta charset=latin1>ä"_s);
        row("UTF-16", QByteArray("\xFF\xFE\xE4\0<\0", 6), u"ä<"_s);
    }
    void pages()
    {
        QFETCH(QByteArray, bytes);
        QTEST(decodePage(bytes), "text");
    }

    void texts_data()
    {
        columns<QByteArray, QString>("bytes", "text");
        row("line ends", "a\r\nb\rc\n\r\nd", u"a\nb\nc\n\nd"_s);
        row("NULs", QByteArray("a\0b\0\0c", 6), u"abc"_s);
        const QByteArray words = QByteArray("Wort ").repeated(1000);
        row("a long line is broken behind a blank", words.first(4999),
            QString::fromLatin1(words.first(4000)) + u"\n"_s + QString::fromLatin1(words.first(999)));
        row("or where the limit is", QByteArray(8001, 'a'),
            QString(4000, u'a') + u"\n"_s + QString(4000, u'a') + u"\na"_s);
        row("a line of the limit is not", QByteArray(4000, 'a') + "\nb", QString(4000, u'a') + u"\nb"_s);
        row("none goes through a pair", QByteArray(3999, 'a') + "\xF0\x9F\x98\x80",
            QString(3999, u'a') + u"\n😀"_s);
    }
    void texts()
    {
        QFETCH(QByteArray, bytes);
        if (bytes.contains('\xF0'))
            bytes.prepend("\xEF\xBB\xBF");
        QTEST(decodeLoadedText(bytes, TextKind::Plain).text, "text");
    }

    void files()
    {
        TestGround t;
        const QString rich = t.writeFile(u"kein Name.lex"_s, u"{\\rtf1 Haus\\par\\par Hof}"_s);
        QCOMPARE(loadText(rich).text, u"Haus\n\nHof"_s);
        QCOMPARE(errorOf([&] { loadText(t.AppFolder + u"fehlt.txt"_s); }), 53);
        QCOMPARE(stemListOfDictionary(u"C:\\W\\Facit\\SS.LEX"_s), u"C:\\W\\text\\SS.txt"_s);
    }
};

WORTEL_TEST(TextLoadingTest)
#include "tst_text_loading.moc"
