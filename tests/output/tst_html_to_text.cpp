// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/html_entities.h"
#include "output/html_to_text.h"
#include "support/test_class.h"

#include <new>

/// Web pages, rule by rule.
class HtmlToTextTest : public QObject
{
    Q_OBJECT

private:
    static QString textOf(const QString &body) { return HTML2Text(u"<body>"_s + body).text; }
    static void row(const char *name, const QString &body, const QString &text)
    {
        QTest::newRow(name) << body << text;
    }

private slots:
    void bodies_data()
    {
        columns<QString, QString>("body", "text");
        row("nothing", u""_s, u""_s);
        row("another tag", u"ein <B>Wort</B><IMG SRC=a.png> hier"_s, u"ein Wort hier"_s);
        row("unclosed", u"davor<B"_s, u"davor"_s);
        row("only an opening", u"davor<"_s, u"davor"_s);
        row("a tag within a tag", u"a<B <BR>b"_s, u"a\nb"_s);
        row("the inner one opens with a line end", u"a<B <\r\nBR>b"_s, u"a\nb"_s);
        row("a comparison is a tag", u"3 < 4 > 5"_s, u"3  5"_s);
        row("paragraphs", u"a<P>b</P><p align=left>c"_s, u"a\n\nb\n\nc"_s);
        row("no paragraph", u"a<PRE>b"_s, u"ab"_s);
        row("breaks", u"a<br>b<BR CLEAR=ALL>c<br/>d<br />e<\u0001BR>f"_s, u"a\nb\nc\nd\ne\nf"_s);
        row("a break over two lines", u"a<br\nclear=all>b"_s, u"a\nb"_s);
        row("selection list", u"<SELECT><OPTION>eins<OPTION VALUE=2>zwei</SELECT>"_s, u"\n\teins\n\tzwei"_s);

        row("comment", u"a<!-- x <b> > -- y --> b"_s, u"a b"_s);
        row("comment with blanks in its marks", u"a< ! - - x - - >b"_s, u"ab"_s);
        row("shortest comment", u"a<!-->b"_s, u"ab"_s);
        row("comment without an end", u"a<!-- b -- c > d"_s, u"a"_s);
        row("a line end ends no dashes", u"a<!-- b --\n> c --> d"_s, u"a d"_s);
        row("script", u"a<SCRIPT LANGUAGE=x>if (a<b && c>d) '<P>'; <!-- </SCRIPT>b"_s, u"ab"_s);
        row("script without an end", u"a<script>b<B>c"_s, u"a"_s);
        row("end of a script that was not", u"a</SCRIPT>b"_s, u"ab"_s);

        row("line ends are one blank", u"a\r\nb\n\n\nc"_s, u"a b c"_s);
        row("and only behind text", u"\r\n<P>\r\na<BR>\nb \r\nc"_s, u"\n\na\nb c"_s);
        row("behind a tag as well", u"a</B>\nb"_s, u"a b"_s);
        row("control characters", u"a\tb\u0001c\u001Ed\u001Fe"_s, u"abcde"_s);
        row("runs of blanks and dashes", u"a   b----c"_s, u"a   b----c"_s);

        row("plain list", u"a<UL><LI>b<li class=x>c</UL>d"_s, u"a\n\n\n •b\n •c\n\nd"_s);
        row("numbered list", u"<OL START=5>\n<LI>a</LI>\n<LI>b</LI></OL>"_s, u"\n\n\n1. a \n2. b\n\n"_s);
        row("nested list", u"<OL><LI>a<UL><LI>b</UL><LI>c</OL>"_s, u"\n\n\n1. a\n\n\n •b\n2. c\n\n"_s);
        row("an item of no list", u"a<LI>b</UL>c"_s, u"a\nb\n\nc"_s);

        const QString cells = u"<TR><TD>%1</TD>\n  <TH ALIGN=X>b</TH></TR>"_s;
        const auto table = [&](const QString &first) {
            return u"x<TABLE>"_s + cells.arg(first) + u"</TABLE>y"_s;
        };
        row("short row", table(u"a"_s), u"x\na   b\ny"_s);
        row("row of 64", table(QString(63, u'a')), u"x\n"_s + QString(63, u'a') + u"   b\ny"_s);
        row("row of 65", table(QString(64, u'a')), u"x\n"_s + QString(64, u'a') + u"\nb\ny"_s);
        row("a break makes a row long", table(u"a<BR>c"_s), u"x\na\nc\nb\ny"_s);
        row("a paragraph behind text stays on the line", table(u"a<P>c"_s), u"x\na c\nb\ny"_s);
        row("a paragraph in front of it does not", table(u"<P>c"_s), u"x\n\n\nc\nb\ny"_s);
        row("a nested table too", table(u"a<TABLE><TR><TD>c<TD>d</TABLE>"_s), u"x\na\nc   d\nb\ny"_s);
        row("rows that nobody closes", u"<TABLE><TR><TD>a<TD>b<TR><TD>c<TD>d<BR>e"_s, u"\na\nb\nc\nd\ne"_s);
        row("each row is measured for itself",
            u"<table>"_s + cells.arg(QString(64, u'a')) + cells.arg(u"c"_s) + u"</table>"_s,
            u"\n"_s + QString(64, u'a') + u"\nb\nc   b"_s);
        row("a line end behind a table", u"x<TABLE><TR><TD>a</TD></TR></TABLE>\ny"_s, u"x\na\ny"_s);
        row("empty cells", u"<TABLE><TR><TD></TD><TD>b</TD></TR></TABLE>"_s, u"\n   b"_s);
        row("cells of no row", u"a<TD>b<TD>c"_s, u"a\nb\nc"_s);

        row("entities", u"&Auml;&auml;&AUML;&szlig;&nbsp;&eacute;&#228;&#150;&#x20AC;&amp;&lt;"_s,
            u"ÄäÄß\u00A0éä–€&<"_s);
        row("unknown and silent ones", u"a&foo;b&quot;c&sup1;d&supl;e&#0;f"_s, u"abcd\u00B9ef"_s);
        row("no entity", u"a & b && c &agravex; &"_s, u"a & b && c &agravex; &"_s);
        row("seven characters", u"&Agrave; &thetas; &12345678;"_s, u"À  &12345678;"_s);
        row("what is between counts", u"Max & Eva; so"_s, u"Max  so"_s);
        row("left over",
            u"&amp;amp; &amp;lt;p&amp;GT; &amp;quot;%20&amp;uuml;&amp;nbsp;&amp;szlig; &#1234567;"_s,
            u"& <p> ' Ü ß #1234567;"_s);
        row("none is left from the rest", u"&amp;amp;amp; &amp;times;"_s, u"&amp; &times;"_s);
    }
    void bodies()
    {
        QFETCH(QString, body);
        QTEST(textOf(body), "text");
    }

    void pages_data()
    {
        columns<QString, QString, QString>("page", "text", "title");
        const auto page = [](const char *name, const QString &html, const QString &text,
                             const QString &title) { QTest::newRow(name) << html << text << title; };
        page("empty", u""_s, u""_s, u""_s);
        page("no body", u"<html>a<P>b<UL><LI>c"_s, u""_s, u""_s);
        page("title and body", u"<TITLE>\r\nEin\nTitel &uuml;ber &foo;</TITLE>a<body BGCOLOR=white>b"_s,
             u"b"_s, u"Ein Titel über"_s);
        page("title without an end", u"<BODY>a<title>b"_s, u"a"_s, u"b"_s);
        page("two titles", u"<title>A</title><body>a<svg><title>B</title></svg>"_s, u"a"_s, u"A"_s);
    }
    void pages()
    {
        QFETCH(QString, page);
        const PageText result = HTML2Text(page);
        QTEST(result.text, "text");
        QTEST(result.title, "title");
    }

    /// Every name of the Latin-1 set, by its code point.
    void entityNames()
    {
        const QStringList signs =
            u"nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn "
            u"sup2 "
            "sup3 acute micro para middot cedil supl ordm raquo frac14 frac12 frac34 iquest"_s.split(u' ');
        const QStringList letters = u"agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc "
                                    u"euml igrave iacute icirc "
                                    "iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave "
                                    "uacute ucirc uuml yacute thorn "
                                    "yuml"_s.split(u' ');
        QCOMPARE(signs.size() + letters.size(), 64);
        for (qsizetype i = 0; i < 32; ++i) {
            QCOMPARE(HTMLSpecChar2ASCII(signs.at(i)), QString(QChar(static_cast<char16_t>(160 + i))));
            QCOMPARE(HTMLSpecChar2ASCII(letters.at(i)), QString(QChar(static_cast<char16_t>(224 + i))));
            const QString capital = letters.at(i).left(1).toUpper() + letters.at(i).mid(1);
            const bool hasCapital = i != 23 && i != 31;
            QCOMPARE(HTMLSpecChar2ASCII(capital),
                     QString(QChar(static_cast<char16_t>(hasCapital ? 192 + i : 224 + i))));
        }
        QCOMPARE(HTMLSpecChar2ASCII(u"times"_s), u"×"_s);
        QCOMPARE(HTMLSpecChar2ASCII(u"#1114112"_s), QString());
        QCOMPARE(HTMLSpecChar2ASCII(u"#xD800"_s), QString());
    }

    void aPassThatIsEndedGivesWhatItHas()
    {
        const QString page = u"<BODY>"_s + u"Wort "_s.repeated(10'000);
        QList<qsizetype> asked;
        const PageText cancelled = HTML2Text(page, [&](qsizetype done) {
            asked << done;
            return done < 5000;
        });
        QCOMPARE(asked, (QList<qsizetype>{1000, 2000, 3000, 4000, 5000}));
        QCOMPARE(cancelled.text.left(4990), u"Wort "_s.repeated(998));
        QVERIFY(cancelled.text.size() <= 5000);
        const PageText full = HTML2Text(page, [](qsizetype done) -> bool {
            if (done >= 5000)
                throw std::bad_alloc();
            return true;
        });
        QCOMPARE(full.text, cancelled.text);
        QCOMPARE(full.complaint, u"Error 7 (Out of memory)\n\nSub: HTML2Text"_s);
        QCOMPARE(cancelled.complaint, QString());
    }

    /// What a page opens a hundred thousand times and never closes.
    void hugePages_data()
    {
        QTest::addColumn<QString>("piece");
        for (const char *piece :
             {"<TABLE><TR><TD>a", "<TR>", "<UL><LI>", "<", "<!--", "&", "<SCRIPT>", "<P>-->"})
            QTest::newRow(piece) << QString::fromLatin1(piece);
    }
    void hugePages()
    {
        QFETCH(QString, piece);
        qsizetype last = 0;
        const PageText result = HTML2Text(u"<BODY>"_s + piece.repeated(100'000), [&](qsizetype done) {
            last = done;
            return true;
        });
        QVERIFY(result.text.size() <= 2'000'000 && last <= 6 + piece.size() * 100'000);
    }
};

WORTEL_TEST(HtmlToTextTest)
#include "tst_html_to_text.moc"
