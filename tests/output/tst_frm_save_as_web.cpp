// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/colour_swatch.h"
#include "output/web/frm_save_as_web.h"
#include "platform/files.h"
#include "support/columns.h"
#include "support/file_size_limit.h"
#include "support/registry.h"
#include "support/test_house.h"

#include <QDesktopServices>
#include <QDropEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString sessionText = u"[Morpheme1]\r\nType=Wortel\r\nLeft=9\r\nTop=7\r\nCaption=\"lauf\"\r\n"
                            "[NumObjects]\r\nObjCounter=1\r\n"_s;

/// The window on a session in the program's folder.
struct Window
{
    TestGround t;
    QString session = t.writeFile(u"brett.wlx"_s, sessionText);
    QString page = t.AppFolder + u"BRETT.html"_s;
    FrmSaveAsWeb form{t.ground, session, u"BRETT.html"_s};

    Window() { form.show(); }
    template <typename Control> Control *control(const char *name)
    {
        return form.findChild<Control *>(QLatin1String(name));
    }
    QString text(const char *name) { return control<QLineEdit>(name)->text(); }
    void type(const char *name, const QString &text) { control<QLineEdit>(name)->setText(text); }
    void press(const char *name) { QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton); }
    /// What the last box said: title and text.
    QString told() const
    {
        return t.boxes.asked.isEmpty() ? QString()
                                       : t.boxes.asked.last().title + u'|' + t.boxes.asked.last().text;
    }
    QString stored(const char *key) const { return t.store.GetSetting(u"Web"_s, QLatin1String(key), u"-"_s); }
    void drop(const char *name, const QString &file)
    {
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter({3, 3}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(control<QLineEdit>(name), &enter);
        QDropEvent event(QPointF(3, 3), Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(control<QLineEdit>(name), &event);
        QCOMPARE(event.dropAction(), Qt::CopyAction);
        TestHouse::settle();
    }
};

/// The browser that shows pages.
class Browser : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> shown;
public slots:
    void show(const QUrl &address) { shown << address; }
};

} // namespace

/// The window "Sitzung speichern als Webseite".
class FrmSaveAsWebTest : public QObject
{
    Q_OBJECT

private slots:
    void firstTime()
    {
        Window w;
        QCOMPARE(w.form.windowTitle(), u"Sitzung speichern als Webseite"_s);
        QCOMPARE(w.text("TxtInfile"), w.session);
        QCOMPARE(w.text("txtoutfile"), w.page);
        QCOMPARE(w.text("TextWebTitle"), u"Wortbausteine"_s);
        QCOMPARE(w.text("txtbgpic") + w.text("LimitedPosX") + w.text("LimitedPosY"), u"00"_s);
        QStringList on;
        for (const auto *button : w.form.findChildren<QAbstractButton *>())
            if (button->isChecked())
                on << button->objectName();
        on.sort();
        QCOMPARE(on, (QStringList{u"ChkMoveable"_s, u"ChkStripExt"_s, u"ChkUseBorder"_s, u"OptFontSize(0)"_s,
                                  u"Option2(0)"_s}));
        QCOMPARE(w.control<ColourSwatch>("Picture1")->colour(), Colour(0xFFFFFF));
        QCOMPARE(w.control<ColourSwatch>("Picture2")->colour(), Colour(0xFFFFFF));
        QCOMPARE(w.control<ColourSwatch>("Picture3")->colour(), Colour(0));
        QVERIFY(w.control<QPlainTextEdit>("TxtMainJava")->toPlainText().contains(u"SET_DRAGGABLE"_s));
        for (const auto *widget : w.form.findChildren<QWidget *>())
            if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible())
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY(w.form.minimumSizeHint().width() <= 853 - 16 &&
                w.form.minimumSizeHint().height() <= 480 - 48);
    }

    void wishesAreKeptOnClosing()
    {
        const std::initializer_list<std::pair<const char *, const char *>> boxes{
            {"ChkAddDate", "WebAddDate"},          {"chkAddBGPic", "WebAddBGPic"},
            {"ChkStripExt", "WebStripPicExt"},     {"ChkMovePic", "WebMovePic"},
            {"ChkMoveable", "WebMoveWords"},       {"ChkUseBorder", "WebUseBorderOnWords"},
            {"ChkMoveTitle", "WebMoveTitle"},      {"ChkKeepTitle", "WebUseTitle"},
            {"OptFontSize(3)", "WebFontUsePlus3"}, {"Option2(1)", "WebUseCustomColors"}};
        Window w;
        w.control<ColourSwatch>("Picture2")->setColour(0x123456);
        w.type("TextWebTitle", u"Größe"_s);
        w.type("LimitedPosX", u"-1a2"_s);
        w.type("txtbgpic", u"C:\\bild.gif"_s);
        QStringList expected;
        for (const auto &[control, key] : boxes) {
            QCOMPARE(w.stored(key), u"-"_s);
            w.press(control);
            const bool isBox = w.control<QCheckBox>(control) != nullptr;
            const bool on = w.control<QAbstractButton>(control)->isChecked();
            expected << (isBox ? (on ? u"1"_s : u"0"_s) : u"True"_s);
        }
        QTest::keyClick(&w.form, Qt::Key_Escape);
        QVERIFY(w.form.isHidden());
        qsizetype at = 0;
        for (const auto &[control, key] : boxes)
            QCOMPARE(w.stored(key), expected.at(at++));
        QCOMPARE(w.stored("WebFontUseDefaultSize"), u"False"_s);
        QCOMPARE(w.stored("WebWordBGColor"), u"1193046"_s);
        QCOMPARE(w.stored("WebTitle"), u"Größe"_s);

        FrmSaveAsWeb again(w.t.ground, {}, {});
        QCOMPARE(again.findChild<QLineEdit *>(u"LimitedPosX"_s)->text(), u"12"_s);
        QCOMPARE(again.findChild<QLineEdit *>(u"txtbgpic"_s)->text(), u"C:\\bild.gif"_s);
        QCOMPARE(again.findChild<ColourSwatch *>(u"Picture2"_s)->colour(), Colour(0x123456));
        QVERIFY(again.findChild<QAbstractButton *>(u"OptFontSize(3)"_s)->isChecked());
        QVERIFY(!again.findChild<QAbstractButton *>(u"ChkStripExt"_s)->isChecked());
        QVERIFY(again.findChild<QLineEdit *>(u"txtoutfile"_s)->text().isEmpty());
    }

    void rubbishInTheSettings()
    {
        TestGround t;
        for (const char *key :
             {"WebAddDate", "WebFontUsePlus2", "WebUseBQVColors", "WebWordFColor", "WebPicXPos"})
            t.store.SaveSetting(u"Web"_s, QLatin1String(key), u"<99999999999>"_s);
        FrmSaveAsWeb form(t.ground, {}, {});
        QVERIFY(!form.findChild<QCheckBox *>(u"ChkAddDate"_s)->isChecked());
        QVERIFY(form.findChild<QAbstractButton *>(u"OptFontSize(0)"_s)->isChecked());
        QVERIFY(form.findChild<QAbstractButton *>(u"Option2(0)"_s)->isChecked());
        QCOMPARE(form.findChild<ColourSwatch *>(u"Picture3"_s)->colour(), Colour(0));
    }

    void aPageIsMade()
    {
        Window w;
        w.press("ChkAddDate");
        w.press("Option2(1)");
        w.t.fileDialogs.willChoose(0x00FF00);
        w.press("Picture2");
        w.t.fileDialogs.willChoose({});
        w.press("Picture1");
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdMakeWebPage");
        QCOMPARE(w.told(), u"Wortel-Meister|Die Datei wurde gespeichert als "_s + w.page);
        QCOMPARE(w.t.boxes.asked.last().code, int(Boxes::Icon::Information));
        const QByteArray html = ReadWholeFile(w.page);
        QVERIFY(html.contains("<td bg bgcolor=#00FF00>") &&
                html.contains("SET_DRAGGABLE(CURSOR_POINTER,\"Word1\""));
        QVERIFY(html.contains("<BODY bgcolor=#FFFFFF") && html.contains("2026</TITLE>"));

        Browser browser;
        QDesktopServices::setUrlHandler(u"file"_s, &browser, "show");
        w.press("cmdViewWebpage");
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(browser.shown, QList<QUrl>{QUrl::fromLocalFile(nativePath(w.page))});

        w.t.boxes.willAnswer(Boxes::Answer::Cancel);
        w.t.writeFile(u"BRETT.html"_s, u"alt"_s);
        w.press("cmdMakeWebPage");
        QCOMPARE(w.told(),
                 u"Wortel-Meister- Bestätigen|Dieser Vorgang wird die vorhandene Datei überschreiben! "
                 "Wollen Sie trotzdem fortfahren?"_s);
        QCOMPARE(ReadWholeFile(w.page), "alt");
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdMakeWebPage");
        QVERIFY(ReadWholeFile(w.page).contains("lauf"));
        QVERIFY(w.t.ok());
    }

    /// What is refused, and in which words; nothing is written.
    // clang-format off
    void checks_data()
    {
        columns<QString, QString, QString, QString>("session", "page", "picture", "told");
        const QString badSession = u"Wortel - Missing .WLX-file|Please enter the name of a valid Wortel-file!"_s;
        const QString badPage =
            u"Wortel - Unsupported File Format|Nur Weibseiten (.HTML oder .HTM) werden unterstützt"_s;
        const QString same =
            u"Wortel-Meister - Fehler|Die Webseite braucht einen anderen Namen als die Sitzung und das Bild."_s;
        const QString notSaved =
            u"Wortel-Meister - Fehler|Die Webseite konnte nicht gespeichert werden als %APP%"_s;
        QTest::newRow("no session") << QString() << u"a.html"_s << QString() << badSession;
        QTest::newRow("session is gone") << u"fort.wlx"_s << u"a.html"_s << QString() << badSession;
        QTest::newRow("session is no session") << u"text.txt"_s << u"a.html"_s << QString() << badSession;
        QTest::newRow("session is a folder") << u"ordner.wlx"_s << u"a.html"_s << QString() << badSession;
        QTest::newRow("no name") << u"brett.wlx"_s << QString() << QString()
                                 << u"Wortel - Missing outfile|Please enter the name of the webpage you want to create (.html) !"_s;
        QTest::newRow("name is no page's") << u"brett.wlx"_s << u"a.txt"_s << QString() << badPage;
        QTest::newRow("name of the session") << u"brett.wlx.html"_s << u"Brett.WLX.html"_s << QString() << same;
        QTest::newRow("name of the picture") << u"brett.wlx"_s << u"a.htm.gif"_s << u"a.htm.gif"_s << same;
        QTest::newRow("picture of a wrong kind") << u"brett.wlx"_s << u"a.html"_s << u"bild.png"_s
                                                 << u"Wortel-Meister - Fehler: Format|Bitte ein Bild im Format Gif, JPG oder BMP !\n"
                                                    "Dieses Bild hat das Format: PNG"_s;
        QTest::newRow("no such folder") << u"brett.wlx"_s << u"fort\\a.html"_s << QString()
                                        << notSaved + u"fort\\a.html\n\nDen Ordner gibt es nicht."_s;
    }
    // clang-format on
    void checks()
    {
        QFETCH(QString, session);
        QFETCH(QString, page);
        QFETCH(QString, picture);
        QFETCH(QString, told);
        Window w;
        w.t.writeFile(u"text.txt"_s, sessionText);
        w.t.writeFile(u"brett.wlx.html"_s, sessionText);
        w.t.writeFile(u"a.htm.gif"_s, u"bild"_s);
        QDir(w.t.folder.path()).mkdir(u"ordner.wlx"_s);
        const auto full = [&w](const QString &name) { return name.isEmpty() ? name : w.t.AppFolder + name; };
        w.type("TxtInfile", full(session));
        w.type("txtoutfile", full(page));
        w.type("txtbgpic", full(picture));
        w.press("chkAddBGPic");
        const auto before = QDir(w.t.folder.path()).entryInfoList(QDir::Files);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdMakeWebPage");
        QCOMPARE(w.told(), told.replace(u"%APP%"_s, w.t.AppFolder));
        QCOMPARE(QDir(w.t.folder.path()).entryInfoList(QDir::Files), before);
        QCOMPARE(ReadWholeFile(w.t.AppFolder + u"brett.wlx.html"_s), sessionText.toLatin1());
        QVERIFY(w.t.ok());
    }

    void aFolderOrAFullDisk()
    {
        Window w;
        QDir(w.t.folder.path()).mkdir(u"seiten.htm"_s);
        w.type("txtoutfile", u"seiten.htm"_s); // beside the session
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdMakeWebPage");
        QVERIFY(w.told().endsWith(u"Diese Datei kann nicht geschrieben oder gelesen werden."_s));
        w.t.writeFile(u"alt.html"_s, u"alt"_s);
        w.type("txtoutfile", u"alt.html"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.t.log.enable(w.t.AppFolder + u"errors.log"_s);
        {
            const FileSizeLimit full(1500);
            w.press("cmdMakeWebPage");
        }
        QVERIFY(w.told().endsWith(u"Diese Datei kann nicht geschrieben oder gelesen werden."_s));
        QCOMPARE(ReadWholeFile(w.t.AppFolder + u"alt.html"_s), "alt");
        QVERIFY(ReadWholeFile(w.t.AppFolder + u"errors.log"_s)
                    .contains("Module:modBQVToWeb::Sub MakeWebpage Error 75 (Path/File access error)"));
        QVERIFY(w.t.ok());
    }

    void nothingToView()
    {
        Window w;
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdViewWebpage");
        QCOMPARE(w.told(), u"Wortel - No Webpage to view|Please translate a Wortel Sitzung first (.wxl) !"_s);
    }

    void filesAreChosenOrDropped()
    {
        Window w;
        w.t.fileDialogs.willSave(u"C:\\neu.html"_s);
        w.press("Command1");
        QCOMPARE(w.text("txtoutfile"), u"C:\\neu.html"_s);
        QCOMPARE(w.t.fileDialogs.asked.last().title, u"Wortel-Meister - Webseite öffnen"_s);
        QCOMPARE(w.t.fileDialogs.asked.last().text, u"Webpage(*.html)|*.html"_s);
        w.t.fileDialogs.willOpen({u"C:\\b.gif"_s});
        w.press("Command5");
        QCOMPARE(w.text("txtbgpic"), u"C:\\b.gif"_s);
        QCOMPARE(w.t.fileDialogs.asked.last().title, u"Wortel-Meister - Bild wählen"_s);
        QCOMPARE(w.t.fileDialogs.asked.last().text, u"GIF-Pictures(*.gif)|*.gif|JPG-Pictures(*.jpg)|*.jpg"_s);
        w.drop("txtbgpic", u"/bilder/b.jpg"_s);
        QCOMPARE(w.text("txtbgpic"), u"\\bilder\\b.jpg"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.drop("TxtInfile", u"/bilder/b.jpg"_s);
        QCOMPARE(w.told(), u"Wortel - Unsupported File Format|Only Wortel-Sitzungen (.WLX) are supported\n"
                           "Extension of file is JPG"_s);
        QCOMPARE(w.text("TxtInfile"), w.session);
        QVERIFY(w.t.ok());
    }

    /// The menu's command saves first; the window goes with the program, and then keeps nothing.
    void commandOfTheMenu()
    {
        TestHouse house;
        house.lay(wortelKind, 10, 20, u"lauf"_s);
        house.t.fileDialogs.willSave(house.t.AppFolder + u"stunde.wlx"_s);
        QString page;
        QTimer::singleShot(0, &house.form, [&] {
            auto *window = qobject_cast<FrmSaveAsWeb *>(QApplication::activeModalWidget());
            QVERIFY(window);
            page = window->findChild<QLineEdit *>(u"txtoutfile"_s)->text();
            house.form.close();
        });
        house.run(command::From::MainMenu, 1907);
        QCOMPARE(page, house.t.AppFolder + u"STUNDE.html"_s);
        QCOMPARE(house.t.store.GetSetting(u"Web"_s, u"WebTitle"_s, u"-"_s), u"-"_s);
        TestHouse::settle();
        QVERIFY(house.form.isHidden());
        QVERIFY(house.t.ok());
    }
};

WORTEL_TEST(FrmSaveAsWebTest)
#include "tst_frm_save_as_web.moc"
