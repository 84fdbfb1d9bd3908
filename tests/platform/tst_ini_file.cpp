// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ini_file.h"
#include "support/error_of.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

class IniFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"Probe.ini"_s);

private slots:
    void cleanup() { QFile::remove(path_); }

    void reads_data()
    {
        // value: of key Tipp in section A
        columns<QByteArray, QString>("bytes", "value");
        QTest::newRow("plain") << QByteArray("[A]\r\nTipp=x y\r\n") << u"x y"_s;
        QTest::newRow("other case and blanks") << QByteArray("  [ a ]\n  tiPP =  x  \n") << u"x"_s;
        QTest::newRow("quotes keep blanks") << QByteArray("[A]\nTipp=\" x \"\n") << u" x "_s;
        QTest::newRow("half a quote stays") << QByteArray("[A]\nTipp=\"x\n") << u"\"x"_s;
        QTest::newRow("equals signs in the value") << QByteArray("[A]\nTipp=a=b\n") << u"a=b"_s;
        QTest::newRow("the first key wins") << QByteArray("[A]\nTipp=1\nTIPP=2\n") << u"1"_s;
        QTest::newRow("the first section wins") << QByteArray("[A]\nTipp=1\n[a]\nTipp=2\n") << u"1"_s;
        QTest::newRow("a later section of the name is dead")
            << QByteArray("[A]\nx=1\n[A]\nTipp=2\n") << u"-"_s;
        QTest::newRow("comment") << QByteArray("[A]\n;Tipp=1\n") << u"-"_s;
        QTest::newRow("before any section") << QByteArray("Tipp=1\n[A]\n") << u"-"_s;
        QTest::newRow("Windows-1252") << QByteArray("[A]\nTipp=\x84sch\xF6n\x93") << u"„schön“"_s;
        QTest::newRow("UTF-8") << QByteArray("[A]\nTipp=sch\xC3\xB6n") << u"schön"_s;
        QTest::newRow("long") << "[A]\nTipp=" + QByteArray(800, 'x') << QString(800, u'x');
        QTest::newRow("no text at all") << QByteArray() << u"-"_s;
        QTest::newRow("brackets and equals signs") << QByteArray("[\n]\n=\n[]\n==\n]A[") << u"-"_s;
    }
    void reads()
    {
        QFETCH(QByteArray, bytes);
        putBytes(path_, bytes);
        QFETCH(QString, value);
        QCOMPARE(IniFile(path_).read(u"A"_s, u"Tipp"_s, u"-"_s), value);
        QCOMPARE(IniFile(path_).read(u"A"_s, u"Tipp"_s, u"-"_s, 750), value.left(750));
    }

    void writes_data()
    {
        // after: key K in section A set to "ö"
        columns<QByteArray, QByteArray>("before", "after");
        QTest::newRow("new file") << QByteArray() << QByteArray("[A]\r\nK=\xF6\r\n");
        QTest::newRow("in place") << QByteArray("; \x84 \n[a]\nk = 1\nx=2\n")
                                  << QByteArray("; \x84 \n[a]\nk =\xF6\r\nx=2\n");
        QTest::newRow("into its section")
            << QByteArray("[A]\nx=1\n\n[B]\nK=2\n") << QByteArray("[A]\nx=1\nK=\xF6\r\n\n[B]\nK=2\n");
        QTest::newRow("section appended")
            << QByteArray("[B]\nK=2") << QByteArray("[B]\nK=2\r\n[A]\r\nK=\xF6\r\n");
        QTest::newRow("no line end at the end")
            << QByteArray("[A]\nx=1") << QByteArray("[A]\nx=1\r\nK=\xF6\r\n");
        QTest::newRow("a file in UTF-8 stays one")
            << QByteArray("[A]\nx=\xC3\xA4\n") << QByteArray("[A]\nx=\xC3\xA4\nK=\xC3\xB6\r\n");
        QTest::newRow("binary lines stay")
            << QByteArray("\0\x01[\xFF\n", 5) << QByteArray("\0\x01[\xFF\n[A]\r\nK=\xF6\r\n", 15);
    }
    void writes()
    {
        QFETCH(QByteArray, before);
        putBytes(path_, before);
        IniFile file(path_);
        file.write(u"A"_s, u"K"_s, u"ö"_s);
        QCOMPARE(file.read(u"a"_s, u"k"_s), u"ö"_s);
        file.save();
        QTEST(bytesOf(path_), "after");
        QCOMPARE(IniFile(path_).read(u"a"_s, u"k"_s), u"ö"_s);
    }

    void everyTextComesBack_data()
    {
        columns<QByteArray, QString>("before", "value");
        QTest::newRow("sharp s before a quotation mark") << QByteArray("[A]\nx=1\n") << u"groß“"_s;
        QTest::newRow("letters the page lacks") << QByteArray("[A]\nx=\xE4\n") << u"Ω 😀"_s;
        QTest::newRow("the same in UTF-8") << QByteArray("[A]\nx=\xC3\xA4\n") << u"Ω 😀"_s;
    }
    void everyTextComesBack()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, value);
        putBytes(path_, before);
        IniFile file(path_);
        const QString other = file.read(u"A"_s, u"x"_s);
        file.write(u"A"_s, u"K"_s, value);
        file.save();
        QCOMPARE(IniFile(path_).read(u"A"_s, u"K"_s), value);
        QCOMPARE(IniFile(path_).read(u"A"_s, u"x"_s), other);
    }

    void untouchedFileIsNotWritten()
    {
        putBytes(path_, "x");
        QFile::remove(path_);
        IniFile(path_).save();
        QVERIFY(!QFileInfo::exists(path_));
        QCOMPARE(errorOf([&] { IniFile{folder_.path()}; }), 75);
    }
};

WORTEL_TEST(IniFileTest)
#include "tst_ini_file.moc"
