// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/colour_swatch.h"
#include "output/web/frm_save_as_web.h"
#include "platform/files.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QDesktopServices>
#include <QDropEvent>
#include <QPlainTextEdit>

namespace {

/// The window on a session in the program's folder.
struct Window
{
    TestGround t;
    QString session = t.writeFile(
        u"brett.wlx"_s,
        u"[Morpheme1]\r\nType=Wortel\r\nLeft=9\r\nTop=7\r\nCaption=\"lauf\"\r\n[NumObjects]\r\nObjCounter=1\r\n"_s);
    QString page = t.AppFolder + u"BRETT.html"_s;
    FrmSaveAsWeb form{t.ground, session, u"BRETT.html"_s};

    Window() { form.show(); }
    template <typename Control> Control *control(const char *name)
    {
        return form.findChild<Control *>(QLatin1String(name));
    }
    QString text(const char *name) { return control<QLineEdit>(name)->text(); }
    void type(const char *name, const QString &text) { control<QLineEdit>(name)->setText(text); }
    Colour colour(const char *name) { return control<ColourSwatch>(name)->colour(); }
    void press(const char *name) { QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton); }
    /// Presses "Webseite erstellen" and gives title and text of the last box.
    QString make(std::initializer_list<Boxes::Answer> answers = {Boxes::Answer::Ok})
    {
        for (const Boxes::Answer answer : answers)
            t.boxes.willAnswer(answer);
        press("cmdMakeWebPage");
        return t.boxes.told();
    }
    QString stored(const char *key) const { return t.store.GetSetting(u"Web"_s, QLatin1String(key), u"-"_s); }
    QStringList chosen()
    {
        QStringList on;
        for (const auto *button : form.findChildren<QAbstractButton *>())
            if (button->isChecked())
                on << button->objectName();
        on.sort();
        return on;
    }
    void drop(const char *name, const QString &file)
    {
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter({3, 3}, Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(control<QLineEdit>(name), &enter);
        QDropEvent event(QPointF(3, 3), Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(control<QLineEdit>(name), &event);
        TestHouse::settle();
    }
};

} // namespace

/// The window "Sitzung speichern als Webseite".
class FrmSaveAsWebTest : public QObject
{
    Q_OBJECT

public slots:
    /// What the browser does with an address.
    void browse(const QUrl &address) { shown_ << address; }

private:
    QList<QUrl> shown_;

private slots:
    void firstTime()
    {
        Window w;
        for (const char *key : {"WebAddDate", "WebFontUsePlus2", "WebUseBQVColors", "WebWordFColor"})
            w.t.store.SaveSetting(u"Web"_s, QLatin1String(key), u"<99999999999>"_s); // as good as nothing
        const FrmSaveAsWeb again(w.t.ground, {}, {});
        QVERIFY(again.findChild<QAbstractButton *>(u"Option2(0)"_s)->isChecked());
        QCOMPARE(again.findChild<ColourSwatch *>(u"Picture3"_s)->colour(), Colour(0));
        QCOMPARE(w.form.windowTitle(), u"Sitzung speichern als Webseite"_s);
        QCOMPARE(w.text("TxtInfile"), w.session);
        QCOMPARE(w.text("txtoutfile"), w.page);
        QCOMPARE(w.text("TextWebTitle") + w.text("txtbgpic") + w.text("LimitedPosX") + w.text("LimitedPosY"),
                 u"Wortbausteine00"_s);
        QCOMPARE(w.chosen().join(u' '), u"ChkMoveable ChkStripExt ChkUseBorder OptFontSize(0) Option2(0)"_s);
        QCOMPARE(QList<Colour>({w.colour("Picture1"), w.colour("Picture2"), w.colour("Picture3")}),
                 QList<Colour>({0xFFFFFF, 0xFFFFFF, 0}));
        QVERIFY(w.control<QPlainTextEdit>("TxtMainJava")->toPlainText().contains(u"SET_DRAGGABLE"_s));
        for (const auto *widget : w.form.findChildren<QWidget *>())
            if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible())
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        QVERIFY(w.form.minimumSizeHint().width() <= 853 - 16 &&
                w.form.minimumSizeHint().height() <= 480 - 48);
    }

    void wishesAreKeptOnClosing()
    {
        // clang-format off
        const std::initializer_list<std::array<const char *, 3>> wishes{
            {"ChkAddDate", "WebAddDate", "1"}, {"chkAddBGPic", "WebAddBGPic", "1"}, {"ChkStripExt", "WebStripPicExt", "0"},
            {"ChkMovePic", "WebMovePic", "1"}, {"ChkMoveable", "WebMoveWords", "0"}, {"ChkUseBorder", "WebUseBorderOnWords", "0"},
            {"ChkMoveTitle", "WebMoveTitle", "1"}, {"ChkKeepTitle", "WebUseTitle", "1"}, {"OptFontSize(3)", "WebFontUsePlus3", "True"},
            {"Option2(1)", "WebUseCustomColors", "True"}};
        // clang-format on
        Window w;
        w.control<ColourSwatch>("Picture2")->setColour(0x123456);
        w.type("TextWebTitle", u"Größe"_s);
        w.type("LimitedPosX", u"-1a2"_s);
        for (const auto &[control, key, value] : wishes)
            w.press(control);
        QCOMPARE(w.stored("WebTitle"), u"-"_s);
        const QStringList on = w.chosen();
        QTest::keyClick(&w.form, Qt::Key_Escape);
        QVERIFY(w.form.isHidden());
        for (const auto &[control, key, value] : wishes)
            QCOMPARE(w.stored(key), QLatin1String(value));
        QCOMPARE(w.stored("WebFontUseDefaultSize") + w.stored("WebWordBGColor") + w.stored("WebTitle"),
                 u"False1193046Größe"_s);

        const FrmSaveAsWeb next(w.t.ground, {}, {});
        QCOMPARE(next.findChild<QLineEdit *>(u"LimitedPosX"_s)->text(), u"12"_s);
        QCOMPARE(next.findChild<ColourSwatch *>(u"Picture2"_s)->colour(), Colour(0x123456));
        for (const QString &name : on)
            QVERIFY2(next.findChild<QAbstractButton *>(name)->isChecked(), qPrintable(name));
    }

    void aPageIsMadeAndViewed()
    {
        Window w;
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        w.press("cmdViewWebpage");
        QCOMPARE(w.t.boxes.told(),
                 u"Wortel - No Webpage to view|Please translate a Wortel Sitzung first (.wxl) !"_s);
        w.press("ChkAddDate");
        w.press("Option2(1)");
        w.t.fileDialogs.willChoose(0x00FF00);
        w.press("Picture2");
        w.t.fileDialogs.willChoose({});
        w.press("Picture1");
        QCOMPARE(w.make(), u"Wortel-Meister|Die Datei wurde gespeichert als "_s + w.page);
        QCOMPARE(w.t.boxes.asked.last().code, int(Boxes::Icon::Information));
        const QByteArray html = ReadWholeFile(w.page);
        for (const char *part : {"<td bg bgcolor=#00FF00>", "SET_DRAGGABLE(CURSOR_POINTER,\"Word1\"",
                                 "<BODY bgcolor=#FFFFFF", "2026</TITLE>"})
            QVERIFY2(html.contains(part), part);
        w.type("txtbgpic", u"C:\\anderswo\\meer.gif"_s);
        w.press("chkAddBGPic");
        w.t.boxes.willAnswer(Boxes::Answer::Ok); // to replace the page
        QVERIFY(w.make().endsWith(u"erst, wenn es im selben Ordner liegt: meer.gif"_s));
        QDesktopServices::setUrlHandler(u"file"_s, this, "browse");
        w.press("cmdViewWebpage");
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QCOMPARE(shown_, QList<QUrl>{QUrl::fromLocalFile(nativePath(w.page))});

        w.t.writeFile(u"BRETT.html"_s, u"alt"_s);
        QCOMPARE(
            w.make({Boxes::Answer::Cancel}),
            u"Wortel-Meister- Bestätigen|Dieser Vorgang wird die vorhandene Datei überschreiben! Wollen Sie trotzdem fortfahren?"_s);
        QCOMPARE(ReadWholeFile(w.page), "alt");
        w.make({Boxes::Answer::Ok, Boxes::Answer::Ok});
        QVERIFY(ReadWholeFile(w.page).contains("lauf"));
    }

    /// What is refused, and in which words; nothing is written.
    // clang-format off
    void checks_data()
    {
        columns<QString, QString, QString, QString>("session", "page", "picture", "told");
        const QString badSession = u"Wortel - Missing .WLX-file|Please enter the name of a valid Wortel-file!"_s;
        const QString same = u"Wortel-Meister - Fehler|Die Webseite braucht einen anderen Namen als die Sitzung und das Bild."_s;
        const QString notSaved = u"Wortel-Meister - Fehler|Die Webseite konnte nicht gespeichert werden als %APP%"_s;
        QTest::newRow("no session") << QString() << u"a.html"_s << QString() << badSession;
        QTest::newRow("session is gone") << u"fort.wlx"_s << u"a.html"_s << QString() << badSession;
        QTest::newRow("no name") << u"brett.wlx"_s << QString() << QString() << u"Wortel - Missing outfile|Please enter the name of the webpage you want to create (.html) !"_s;
        QTest::newRow("name is no page's") << u"brett.wlx"_s << u"a.txt"_s << QString() << u"Wortel - Unsupported File Format|Nur Weibseiten (.HTML oder .HTM) werden unterstützt"_s;
        QTest::newRow("name of the session") << u"brett.wlx.html"_s << u"Brett.WLX.html"_s << QString() << same;
        QTest::newRow("name of the picture") << u"brett.wlx"_s << u"a.htm.gif"_s << u"a.htm.gif"_s << same;
        QTest::newRow("picture of a wrong kind") << u"brett.wlx"_s << u"a.html"_s << u"bild.png"_s << u"Wortel-Meister - Fehler: Format|Bitte ein Bild im Format Gif, JPG oder BMP !\nDieses Bild hat das Format: PNG"_s;
        QTest::newRow("page is a folder") << u"brett.wlx"_s << u"ordner.htm"_s << QString() << notSaved + u"ordner.htm\n\nDiese Datei kann nicht geschrieben oder gelesen werden."_s;
        QTest::newRow("no such folder") << u"brett.wlx"_s << u"fort\\a.html"_s << QString() << notSaved + u"fort\\a.html\n\nDen Ordner gibt es nicht."_s;
    }
    // clang-format on
    void checks()
    {
        QFETCH(QString, session);
        QFETCH(QString, page);
        QFETCH(QString, picture);
        QFETCH(QString, told);
        Window w;
        w.t.writeFile(u"brett.wlx.html"_s, u"Sitzung"_s);
        w.t.writeFile(u"a.htm.gif"_s, u"Bild"_s);
        QDir folder(w.t.folder.path());
        folder.mkdir(u"ordner.htm"_s);
        w.t.log.enable(w.t.AppFolder + u"errors.log"_s);
        for (const auto &[field, name] :
             {std::pair{"TxtInfile", session}, {"txtoutfile", page}, {"txtbgpic", picture}})
            w.type(field, name.isEmpty() ? name : w.t.AppFolder + name);
        w.press("chkAddBGPic");
        if (page == u"ordner.htm"_s) // the question whether to replace it
            w.t.boxes.willAnswer(Boxes::Answer::Ok);
        QCOMPARE(w.make(), told.replace(u"%APP%"_s, w.t.AppFolder));
        QCOMPARE(ReadWholeFile(w.t.AppFolder + u"errors.log"_s)
                     .contains("Module:modBQVToWeb::Sub MakeWebpage Error "),
                 told.contains(u"gespeichert"_s));
        QVERIFY(!IsTextFile(w.t.AppFolder + u"a.html"_s));
        QCOMPARE(ReadWholeFile(w.t.AppFolder + u"brett.wlx.html"_s), "Sitzung");
    }

    void filesAreChosenOrDropped()
    {
        Window w;
        const auto asked = [&w] {
            return w.t.fileDialogs.asked.last().title + u'|' + w.t.fileDialogs.asked.last().text;
        };
        w.t.fileDialogs.willSave(u"C:\\neu.html"_s);
        w.press("Command1");
        QCOMPARE(asked(), u"Wortel-Meister - Webseite öffnen|Webpage(*.html)|*.html"_s);
        w.t.fileDialogs.willOpen({u"C:\\b.gif"_s});
        w.press("Command5");
        QCOMPARE(asked(),
                 u"Wortel-Meister - Bild wählen|GIF-Pictures(*.gif)|*.gif|JPG-Pictures(*.jpg)|*.jpg"_s);
        QCOMPARE(w.text("txtoutfile") + w.text("txtbgpic"), u"C:\\neu.htmlC:\\b.gif"_s);
        w.t.boxes.willAnswer(Boxes::Answer::Ok);
        for (const char *field : {"txtbgpic", "TxtInfile"})
            w.drop(field, u"/bilder/b.jpg"_s);
        QCOMPARE(
            w.t.boxes.told(),
            u"Wortel - Unsupported File Format|Only Wortel-Sitzungen (.WLX) are supported\nExtension of file is JPG"_s);
        QCOMPARE(w.text("txtbgpic") + w.text("TxtInfile"), u"\\bilder\\b.jpg"_s + w.session);
    }
};

WORTEL_TEST(FrmSaveAsWebTest)
#include "tst_frm_save_as_web.moc"
