// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "e2e/desktop.h"
#include "e2e/known_board.h"
#include "output/pdf.h"
#include "support/file_bytes.h"
#include "support/registry.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// What leaves the program: the board as a PDF file, where there is no printer, and as a web page.
class PaperAndPageTest : public QObject
{
    Q_OBJECT

private:
    /// Chooses an entry of the menu "Sitzung": from the menu's end quit, close, help, options, action,
    /// session.
    static void choose(Desktop &desktop, int entry)
    {
        desktop.chooseFromMenu(desktop.boardArea().topLeft() + QPoint(40, 300),
                               u"Up Up Up Up Up Up Right "_s + u"Down "_s.repeated(entry) + u"Return"_s);
    }
    /// Waits for a window and answers it with its standard button.
    static bool confirm(Desktop &desktop, const QString &title)
    {
        if (desktop.waitForWindow(title).isEmpty())
            return false;
        Desktop::pause(300);
        desktop.key(u"Return"_s);
        return desktop.waitForNoWindow(title);
    }

private slots:
    void boardOnPaperAndAsPage()
    {
        Desktop desktop(QSize(853, 480));
        quiet(desktop);
        desktop.setSetting(u"PrintInColor"_s, u"1"_s);
        desktop.start({desktop.writeFile(u"brett.wlx"_s, knownBoard())});
        QVERIFY(!desktop.waitForWindow(mainWindow).isEmpty());
        Desktop::pause(1000);

        choose(desktop, 3);
        QVERIFY(confirm(desktop, u"Druckerfehler$"_s));
        QVERIFY(confirm(desktop, u" - Drucken$"_s));
        QVERIFY(!desktop.waitForWindow(u"Als PDF-Datei speichern$"_s).isEmpty());
        desktop.enter(u"brett"_s);
        QVERIFY(confirm(desktop, u"^Wortel-Meister$"_s));
        const Pdf paper(desktop.programFolder() + u"/brett.pdf"_s);
        QCOMPARE(paper.pages(), 1);
        QStringList words = paper.words();
        words.removeAll(u"en"_s); // the band covers it: on paper it is cut off
        words.sort();
        QCOMPARE(words, (QStringList{u"auf"_s, u"fahr"_s, u"kauf"_s, u"lauf"_s, u"mach"_s, u"schreib"_s,
                                     u"spiel"_s}));

        choose(desktop, 4);
        QVERIFY(!desktop.waitForWindow(u"^Drucker Einstellungen"_s).isEmpty());
        desktop.keepPicture(u"printer-set-up"_s);
        desktop.key(u"Escape"_s);

        choose(desktop, 2);
        QVERIFY(!desktop.waitForWindow(u"^Wortel - Sitzung speichern"_s).isEmpty());
        desktop.enter(u"stunde"_s);
        QVERIFY(!desktop.waitForWindow(u"^Sitzung speichern als Webseite"_s).isEmpty());
        Desktop::pause(300);
        desktop.keepPicture(u"save-as-web"_s);
        desktop.key(u"Return"_s);
        QVERIFY(confirm(desktop, u"^Wortel-Meister$"_s));
        const QByteArray page = bytesOf(desktop.programFolder() + u"/STUNDE.html"_s);
        QCOMPARE(page.count("<td bg bgcolor="), 8);
        QVERIFY(page.contains("\r\nschreib\r\n"));
        desktop.key(u"Escape"_s);
        QVERIFY(desktop.waitForNoWindow(u"^Sitzung speichern als Webseite"_s));
        QVERIFY(desktop.close());
    }
};

WORTEL_TEST(PaperAndPageTest)
#include "tst_paper_and_page.moc"
