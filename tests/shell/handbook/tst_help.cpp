// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/menu_table.h"
#include "persistence/settings/options_layout.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/settings_table.h"
#include "shell/handbook/compiled_help.h"
#include "shell/handbook/help.h"
#include "shell/handbook/help_browser.h"
#include "shell/handbook/help_pages.h"
#include "shell/handbook/help_window.h"
#include "support/file_bytes.h"
#include "support/test_class.h"

#include <QApplication>
#include <QDesktopServices>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPdfWriter>
#include <QTextDocument>
#include <QToolButton>
#include <QTreeWidget>

namespace {

const QString dataFolder = QStringLiteral(WORTEL_SOURCE_DIR "/data");
const QString handbookFolder = dataFolder + u"/hilfe"_s;

QString htmlOf(const QString &file)
{
    QFile page(handbookFolder + u'/' + file);
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

QString wordsOf(const QString &file)
{
    QTextDocument document;
    document.setHtml(htmlOf(file));
    return document.toPlainText().simplified();
}

/// A small handbook of three pages in a folder of its own, with a secret beside it.
struct SmallHandbook
{
    SmallHandbook()
    {
        putBytes(place.filePath(u"hilfe/index.html"_s),
                 "<h1>Start</h1><a href=\"eins.html\">Eins</a> <a href=\"zwei.html\">Zwei</a> Anfang");
        putBytes(place.filePath(u"hilfe/eins.html"_s),
                 "<h2><a name=\"a\">Abschnitt</a></h2>Der Igel und der Hase, der Igel");
        putBytes(place.filePath(u"hilfe/zwei.html"_s), "Der Fuchs");
        putBytes(place.filePath(u"geheim.html"_s), "geheim");
        QImage picture(3, 3, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(place.filePath(u"hilfe/bild.png"_s));
        picture.save(place.filePath(u"geheim.png"_s));
        QFile::link(place.filePath(u"geheim.html"_s), place.filePath(u"hilfe/schleichweg.html"_s));
    }
    QString folder() const { return place.filePath(u"hilfe"_s); }

    QTemporaryDir place;
};

} // namespace

/// The handbook that comes with the program, and the window that shows it.
class HelpTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesLinksAndPicturesAreThere()
    {
        const HelpPages handbook(handbookFolder);
        QVERIFY(handbook.pages().size() >= 10);
        QStringList unnamed = QDir(handbookFolder).entryList({u"*.html"_s});
        QStringList pictures = QDir(handbookFolder + u"/bilder"_s).entryList({u"*.png"_s});
        QVERIFY(!pictures.isEmpty());
        static const QRegularExpression reference(u"(?:href|src)=\"([^\"]*)\""_s);
        for (const HelpPage &page : handbook.pages()) {
            unnamed.removeAll(page.file);
            const QString html = htmlOf(page.file);
            QVERIFY2(html.contains(u"<meta charset=\"utf-8\">"_s), qPrintable(page.file));
            auto found = reference.globalMatch(html);
            while (found.hasNext()) {
                const QUrl target(found.next().captured(1));
                QVERIFY2(target.isRelative() && !handbook.fileOf(target).isEmpty(),
                         qPrintable(page.file + u": "_s + target.toString()));
                pictures.removeAll(target.fileName());
            }
        }
        QVERIFY2(unnamed.isEmpty(), qPrintable(u"not in the contents: "_s + unnamed.join(u' ')));
        QVERIFY2(pictures.isEmpty(), qPrintable(u"in no page: "_s + pictures.join(u' ')));
    }

    void everySettingIsTold()
    {
        const QString words = wordsOf(u"optionen.html"_s);
        for (const SettingRow &row : settingsTable()) {
            const QString caption = QString::fromUtf16(row.caption).simplified();
            QVERIFY2(words.contains(caption), qPrintable(caption));
        }
        for (const auto &page : options_layout::pages)
            QVERIFY(words.contains(u"Seite "_s + QString::fromUtf16(page.caption).remove(u'&')));
        for (const auto &frame : options_layout::frames)
            QVERIFY2(words.contains(QString::fromUtf16(frame.title)),
                     qPrintable(QString::fromUtf16(frame.title)));
    }

    void everyMenuEntryAndKeyIsTold()
    {
        const QString words = wordsOf(u"tasten.html"_s);
        const auto told = [&words](const menu::Row &row) {
            const QString hint = QString::fromUtf16(row.hint);
            if (!hint.contains(u'%') && !words.contains(hint))
                return hint;
            const QString caption = QString::fromUtf16(row.caption);
            return row.level > 1 || caption.startsWith(u'-') || words.contains(caption) ? QString() : caption;
        };
        for (const menu::Row &row : menu::mainMenu)
            QCOMPARE(told(row), QString());
        for (const menu::Row &row : menu::retypeMenu)
            QCOMPARE(told(row), QString());
        for (const menu::Row &row : menu::tileMenu)
            QCOMPARE(told(row), QString());
        for (const QString &key :
             {u"F1"_s, u"Strg+A"_s, u"Strg+B"_s, u"Strg+D"_s, u"Strg+E"_s, u"Strg+F"_s, u"Strg+H"_s,
              u"Strg+I"_s, u"Strg+J"_s, u"ESC"_s, u"Menütaste"_s, u"Eingabetaste"_s})
            QVERIFY2(words.contains(key), qPrintable(key));
    }

    void loadsNothingFromElsewhere_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("inside");
        QTest::newRow("page") << u"eins.html"_s << true;
        QTest::newRow("picture") << u"bild.png"_s << true;
        QTest::newRow("beside") << u"../geheim.html"_s << false;
        QTest::newRow("beside, whole") << u"file://%1/geheim.html"_s << false;
        QTest::newRow("coded dots") << u"file://%1/hilfe/%2e%2e/geheim.html"_s << false;
        QTest::newRow("picture beside") << u"file://%1/geheim.png"_s << false;
        QTest::newRow("other machine") << u"file://server/hilfe/eins.html"_s << false;
        QTest::newRow("link out") << u"schleichweg.html"_s << false;
        QTest::newRow("system") << u"file:///etc/passwd"_s << false;
        QTest::newRow("http") << u"http://example.org/eins.html"_s << false;
        QTest::newRow("data") << u"data:text/html,geheim"_s << false;
    }
    void loadsNothingFromElsewhere()
    {
        QFETCH(QString, address);
        QFETCH(bool, inside);
        const SmallHandbook handbook;
        HelpWindow window(handbook.folder(), gate_);
        const QUrl url(address.replace(u"%1"_s, handbook.place.path()));
        const bool picture = url.fileName().endsWith(u".png"_s);
        const int type = picture ? QTextDocument::ImageResource : QTextDocument::HtmlResource;
        // By way of the document, which would fetch a local file by itself if it were given a null value.
        const QVariant loaded = window.browser()->document()->resource(type, url);
        if (picture)
            QCOMPARE(loaded.value<QImage>().width(), inside ? 3 : 1);
        else
            QCOMPARE(loaded.toString().isEmpty(), !inside);

        QDesktopServices::setUrlHandler(u"http"_s, this, "noteOpened");
        window.browser()->setSource(url);
        QDesktopServices::unsetUrlHandler(u"http"_s);
        QVERIFY(noted_.isEmpty());
        if (!inside)
            QCOMPARE(window.browser()->source().fileName(), HelpPages::startPage);
    }

    void contentsLeadToPagesAndSections()
    {
        const SmallHandbook handbook;
        HelpWindow window(handbook.folder(), gate_);
        window.show();
        auto *contents = window.findChild<QTreeWidget *>(u"contents"_s);
        QCOMPARE(contents->topLevelItemCount(), 3);
        QCOMPARE(contents->topLevelItem(0)->text(0), u"Start"_s);
        QCOMPARE(contents->topLevelItem(1)->child(0)->text(0), u"Abschnitt"_s);
        contents->setCurrentItem(contents->topLevelItem(1)->child(0));
        QCOMPARE(window.browser()->source().fileName(), u"eins.html"_s);
        QCOMPARE(window.browser()->source().fragment(), u"a"_s);

        window.findChild<QToolButton *>(u"back"_s)->click();
        QCOMPARE(window.browser()->source().fileName(), HelpPages::startPage);
        QCOMPARE(contents->currentItem(), contents->topLevelItem(0));
        window.findChild<QToolButton *>(u"forward"_s)->click();
        QCOMPARE(window.browser()->source().fileName(), u"eins.html"_s);
    }

    void searchGoesThroughAllPagesAndRound()
    {
        const SmallHandbook handbook;
        HelpWindow window(handbook.folder(), gate_);
        window.show();
        auto *box = window.findChild<QLineEdit *>(u"search"_s);
        auto *state = window.findChild<QLabel *>(u"searchState"_s);
        const auto place = [&window] {
            const QTextCursor cursor = window.browser()->textCursor();
            return u"%1 %2"_s.arg(window.browser()->source().fileName(), cursor.selectedText());
        };
        box->setText(u"igel"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(place(), u"eins.html Igel"_s);
        const int first = window.browser()->textCursor().position();
        window.searchOn(false);
        QVERIFY(window.browser()->textCursor().position() > first);
        window.searchOn(false); // round
        QCOMPARE(window.browser()->textCursor().position(), first);

        box->setText(u"der"_s);
        window.findChild<QToolButton *>(u"next"_s)->click();
        window.searchOn(false);
        window.searchOn(false);
        QCOMPARE(place(), u"zwei.html Der"_s);
        window.findChild<QToolButton *>(u"previous"_s)->click();
        QCOMPARE(place(), u"eins.html der"_s);

        QVERIFY(state->text().isEmpty());
        box->setText(u"Elefant"_s);
        window.searchOn(false);
        QCOMPARE(state->text(), u"nicht gefunden"_s);
        QCOMPARE(window.browser()->source().fileName(), u"eins.html"_s);
        window.searchOn(true);
        QCOMPARE(state->text(), u"nicht gefunden"_s);
        box->clear();
        QVERIFY(state->text().isEmpty());
    }

    void printsThePage()
    {
        HelpWindow window(handbookFolder, gate_);
        window.browser()->setSource(window.handbook().address(u"kinder.html"_s));
        const QTemporaryDir place;
        const QString path = place.filePath(u"seite.pdf"_s);
        QPdfWriter paper(path);
        window.printTo(paper);
        QVERIFY(QFileInfo(path).size() > 10000); // its pictures are in it
    }

    void missingHandbookIsTold()
    {
        const QTemporaryDir place;
        HelpWindow window(place.filePath(u"hilfe"_s), gate_);
        window.show();
        QVERIFY(window.browser()->toPlainText().contains(place.filePath(u"hilfe"_s)));
        window.findChild<QLineEdit *>(u"search"_s)->setText(u"Wort"_s);
        window.searchOn(false);
    }

    void opensOneWindowAndEscClosesIt()
    {
        const SmallHandbook handbook;
        QWidget owner;
        owner.show();
        Help help(storedPath(handbook.place.path()) + u'\\', gate_, &owner);
        help.open();
        const QPointer<HelpWindow> first = help.window();
        QVERIFY(first->isVisible());
        QCOMPARE(first->windowModality(), Qt::NonModal);
        help.open();
        QCOMPARE(help.window(), first.data());
        QVERIFY(QTest::qWaitForWindowActive(first));
        QTest::keyClick(first->browser(), Qt::Key_Escape);
        QTRY_VERIFY(!first->isVisible());
        first->browser()->setSource(first->handbook().address(u"eins.html"_s));
        first->findChild<QLineEdit *>(u"search"_s)->setText(u"Wort"_s);
        help.open();
        QCOMPARE(help.window(), first.data()); // hidden, never gone
        QVERIFY(first->isVisible());
        QCOMPARE(first->browser()->source(), first->handbook().address(HelpPages::startPage));
        QVERIFY(first->findChild<QLineEdit *>(u"search"_s)->text().isEmpty());
        QVERIFY(!first->browser()->isBackwardAvailable());
    }

    void compiledHelpGoesFirstWhereItCanBeShown()
    {
        const SmallHandbook handbook;
        const QString caches = handbook.place.filePath(u"share"_s);
        const QString folder = storedPath(handbook.place.path()) + u'\\';
        QVERIFY(compiled_help::file(folder).isEmpty());
        putBytes(handbook.place.filePath(u"Wortel.CHM"_s), "x");
        QVERIFY(compiled_help::file(folder).endsWith(u"/Wortel.CHM"_s));

#ifndef Q_OS_WIN
        QVERIFY(!compiled_help::canBeShown({caches}));
        putBytes(caches + u"/applications/mimeinfo.cache"_s, "[MIME Cache]\ntext/plain=editor.desktop;\n");
        QVERIFY(!compiled_help::canBeShown({caches}));
        putBytes(caches + u"/applications/mimeinfo.cache"_s,
                 "[MIME Cache]\napplication/vnd.ms-htmlhelp=viewer.desktop;\n");
        QVERIFY(compiled_help::canBeShown({u"/nowhere"_s, caches}));

        qputenv("XDG_DATA_DIRS", QFile::encodeName(caches));
        QDesktopServices::setUrlHandler(u"file"_s, this, "noteOpened");
        Help help(folder, gate_, nullptr);
        help.open();
        QDesktopServices::unsetUrlHandler(u"file"_s);
        qunsetenv("XDG_DATA_DIRS");
        QCOMPARE(QFileInfo(noted_.toLocalFile()).fileName(), u"Wortel.CHM"_s);
        QCOMPARE(help.window(), nullptr);
        noted_.clear();
#endif
    }

    void fitsASmallScreen()
    {
        HelpWindow window(handbookFolder, gate_);
        QVERIFY2(
            window.minimumSizeHint().width() <= 853 && window.minimumSizeHint().height() <= 420,
            qPrintable(
                u"%1x%2"_s.arg(window.minimumSizeHint().width()).arg(window.minimumSizeHint().height())));
    }

public slots:
    void noteOpened(const QUrl &url) { noted_ = url; }

private:
    QUrl noted_;
    Gate gate_;
};

WORTEL_TEST(HelpTest)
#include "tst_help.moc"
