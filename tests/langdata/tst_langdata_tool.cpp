// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "langdata/blocklist.h"
#include "langdata/sources.h"
#include "langdata/textfiles.h"
#include "langdata/workshop.h"
#include "support/columns.h"
#include "support/registry.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A small maker's bench in a folder of its own: sources, word rules, data.
class Bench
{
public:
    Bench()
    {
        for (const QString &folder :
             {u"sources"_s, u"rules"_s, u"data/affix"_s, u"data/text"_s, u"data/facit"_s})
            QDir(dir_.path()).mkpath(folder);
        write("sources/de_DE_frami.aff", "SET ISO8859-1\n"
                                         "PFX V Y 1\nPFX V 0 ver .\n"
                                         "SFX I Y 2\nSFX I en e en\nSFX I en t [^t]en\n"
                                         "SFX A Y 1\nSFX A 0 en .\n"
                                         "SFX S Y 1\nSFX S 0 s .\n");
        write("sources/de_DE_frami.dic",
              "14\nleben/IV\nLeben/S\nlieben/I\nlieb/A\nLieb\nLieben\nlaufen/I\n"
              "Laufen/S\nL\xe4ufer/S\nL\xe4uferIn\nlauft\xfcren/o\nLaufereien\nLieberei\n"
              "Laufbar\nHaus\n");
        write("sources/familiar.txt", "Laufereien\nAbl\xc3\xa4ufer\nLebt\n");
        write("rules/blocklist.txt", "unfl\xc3\xa4tig\n");
        write("rules/include.txt", "Leben # a word of its own\n");
        write("rules/exclude.txt", "Laufbar Lieberei\n");
        write("data/affix/prefix.afx", "ver\r\nab\r\n");
        write("data/affix/suffix.afx", "e\r\nen\r\ner\r\nt\r\nbar\r\nerei\r\n");
        write("data/text/Kurz.txt", "lauf\r\nl\xe4uf\r\n");
        write("data/text/Lang.txt", "leb\r\nlieb\r\n");
        sum();
    }

    void write(const QString &name, const QByteArray &bytes) const
    {
        langdata::writeWhole(dir_.filePath(name), bytes);
    }
    void write(const char *name, const QByteArray &bytes) const { write(QString::fromUtf8(name), bytes); }
    QByteArray read(const QString &name) const { return langdata::readBytes(dir_.filePath(name)); }
    void remove(const QString &name) const { QFile::remove(dir_.filePath(name)); }

    /// Takes the sources as they are now for the right version.
    void sum() const
    {
        QByteArray lines = "# right versions\n";
        for (const QString &name : QDir(dir_.filePath(u"sources"_s)).entryList(QDir::Files)) {
            const QByteArray content = read(u"sources/"_s + name);
            lines += QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() + ' ' +
                     name.toUtf8() + '\n';
        }
        write("rules/sources.txt", lines);
    }

    /// Empty if all went well, else what the maintainer is told.
    QString make() const
    {
        const QString rules = dir_.filePath(u"rules"_s);
        try {
            const langdata::Sources sources(dir_.filePath(u"sources"_s), rules + u"/sources.txt"_s);
            langdata::makeDictionaries(sources, rules, dir_.filePath(u"data"_s), [](const QString &form) {
                return form != u"verlebe" && form != u"abläufer";
            });
        } catch (const langdata::InputError &error) {
            return QString::fromUtf8(error.what());
        }
        return {};
    }

    QStringList outputs() const
    {
        return QDir(dir_.filePath(u"data/facit"_s)).entryList(QDir::Files, QDir::Name);
    }

private:
    QTemporaryDir dir_;
};

} // namespace

/// The program behind data/facit, with small sources and a stand-in for the spelling library.
class LangDataToolTest : public QObject
{
    Q_OBJECT

private slots:
    void makesDictionaries();
    void sameInputSameBytes();
    void badInputLeavesOldFiles_data();
    void badInputLeavesOldFiles();
    void blocklistIsAnchored_data();
    void blocklistIsAnchored();
};

void LangDataToolTest::makesDictionaries()
{
    const Bench bench;
    QCOMPARE(bench.make(), QString());
    // "Laufen" is a verb used as a noun, "LäuferIn" no spelling for a school; the long "Laufereien" is
    // familiar
    QCOMPARE(QString::fromLatin1(bench.read(u"data/facit/Kurz.lex"_s)),
             u"Abläufer\r\nlaufe\r\nlaufen\r\nLäufer\r\nLaufereien\r\nlauft\r\n"_s);
    // of twins the verb or the adjective leads; the spelling library refused "verlebe"; "Lebt" stands in
    // capitals only where a sentence begins
    QCOMPARE(QString::fromLatin1(bench.read(u"data/facit/Lang.lex"_s)),
             u"lebe\r\nleben\r\nLeben\r\nlebt\r\nlieb\r\nLieb\r\nliebe\r\nlieben\r\nliebt\r\n"
             "verleben\r\nverlebt\r\n"_s);
    const QByteArray report = bench.read(u"rules/report.txt"_s);
    QVERIFY(report.contains("exclude list): 2\nLaufbar Lieberei\n"));
}

void LangDataToolTest::sameInputSameBytes()
{
    const Bench first;
    const Bench second;
    QCOMPARE(first.make(), QString());
    QCOMPARE(second.make(), QString());
    for (const QString &name : {u"data/facit/Kurz.lex"_s, u"data/facit/Lang.lex"_s, u"rules/report.txt"_s})
        QCOMPARE(first.read(name), second.read(name));
}

void LangDataToolTest::badInputLeavesOldFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content"); // null: the file is missing
    QTest::addColumn<bool>("sums");          // the sums are taken anew
    QTest::addColumn<QString>("told");
    QTest::newRow("unknown stem") << u"data/text/Lang.txt"_s << QByteArray("leb\r\nxyz\r\nqua\r\n") << true
                                  << u"unknown stems"_s;
    QTest::newRow("stem twice") << u"data/text/Lang.txt"_s << QByteArray("leb\r\nlieb\r\nleb\r\n") << true
                                << u"\"leb\" stands there twice"_s;
    QTest::newRow("capital stem") << u"data/text/Lang.txt"_s << QByteArray("Leb\r\n") << true
                                  << u"is no stem"_s;
    QTest::newRow("bare line feed") << u"data/text/Lang.txt"_s << QByteArray("leb\nlieb\r\n") << true
                                    << u"line 1"_s;
    QTest::newRow("not trimmed") << u"data/text/Lang.txt"_s << QByteArray("leb\r\nlieb \r\n") << true
                                 << u"line 2"_s;
    QTest::newRow("last line cut") << u"data/text/Lang.txt"_s << QByteArray("leb\r\nlieb") << true
                                   << u"does not end with CR LF"_s;
    QTest::newRow("source missing") << u"sources/de_DE_frami.dic"_s << QByteArray() << false
                                    << u"de_DE_frami.dic"_s;
    QTest::newRow("source of another version")
        << u"sources/familiar.txt"_s << QByteArray("laufen\n") << false << u"another version"_s;
    QTest::newRow("source in another encoding")
        << u"sources/de_DE_frami.aff"_s << QByteArray("SET UTF-8\n") << true << u"ISO 8859-1"_s;
    QTest::newRow("source empty") << u"sources/de_DE_frami.dic"_s << QByteArray("0\n") << true
                                  << u"nothing"_s;
    QTest::newRow("blocklist empty") << u"rules/blocklist.txt"_s << QByteArray("# \n") << true
                                     << u"blocklist"_s;
    QTest::newRow("blocklist broken")
        << u"rules/blocklist.txt"_s << QByteArray("ha(ss\n") << true << u"blocklist"_s;
    QTest::newRow("include impossible")
        << u"rules/include.txt"_s << QByteArray("Haus\n") << true << u"include list"_s;
}

void LangDataToolTest::badInputLeavesOldFiles()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(bool, sums);
    QFETCH(QString, told);
    const Bench bench;
    bench.write("data/facit/Kurz.lex", "old\r\n");
    if (content.isNull())
        bench.remove(file);
    else
        bench.write(file, content);
    if (sums)
        bench.sum();
    const QString message = bench.make();
    QVERIFY2(message.contains(told), qPrintable(message));
    QCOMPARE(bench.outputs(), QStringList{u"Kurz.lex"_s});
    QCOMPARE(bench.read(u"data/facit/Kurz.lex"_s), QByteArray("old\r\n"));
}

void LangDataToolTest::blocklistIsAnchored_data()
{
    columns<QString, bool>("word", "blocked");
    QTest::newRow("the part itself") << u"Arsch"_s << true;
    QTest::newRow("between affixes") << u"verarschte"_s << true;
    QTest::newRow("two prefixes") << u"zuverarschen"_s << true;
    QTest::newRow("inside a word") << u"Nachbarschaft"_s << false;
    QTest::newRow("before a derivation") << u"arschig"_s << true;
    QTest::newRow("alternative") << u"Schisser"_s << true;
    QTest::newRow("longer stem") << u"schissel"_s << false;
}

void LangDataToolTest::blocklistIsAnchored()
{
    QFETCH(QString, word);
    const langdata::Blocklist blocklist({u"arsch"_s, u"schiss|scheiß"_s}, {u"ver"_s, u"zu"_s, u"nach"_s},
                                        {u"en"_s, u"er"_s, u"ig"_s, u"schaft"_s});
    QTEST(blocklist.blocks(word), "blocked");
}

WORTEL_TEST(LangDataToolTest)
#include "tst_langdata_tool.moc"
