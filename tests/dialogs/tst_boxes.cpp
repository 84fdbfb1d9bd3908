// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/message_box.h"
#include "dialogs/real_boxes.h"
#include "support/test_class.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include <functional>

namespace {

constexpr auto modalWait = 20; ///< milliseconds until the box is up

/// Runs `act` on the modal box that `ask` opens, and closes it by force should it stay.
template <typename Ask> auto answered(Ask ask, const std::function<void(QWidget *)> &act)
{
    bool seen = false;
    QTimer::singleShot(modalWait, [&] {
        QWidget *box = QApplication::activeModalWidget();
        QVERIFY(box != nullptr);
        seen = true;
        act(box);
        if (QApplication::activeModalWidget() == box && box->isVisible()) {
            box->close();
            QFAIL("the box stayed open");
        }
    });
    auto answer = ask();
    if (!seen)
        QTest::qFail("no box came up", __FILE__, __LINE__);
    return answer;
}

void pressKey(QWidget *box, Qt::Key key)
{
    QTest::keyClick(box->focusWidget() ? box->focusWidget() : box, key);
}

/// The two colours that `picture` has most of, the commoner one first.
std::pair<QColor, QColor> mainColours(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QList<QRgb> found = counts.keys();
    std::sort(found.begin(), found.end(), [&](QRgb a, QRgb b) { return counts[a] > counts[b]; });
    return {found.value(0), found.value(1)};
}

PressButton *buttonOf(QWidget *box, const QString &name) { return box->findChild<PressButton *>(name); }

} // namespace

class BoxesTest : public QObject
{
    Q_OBJECT

private slots:
    void questionNotShown()
    {
        Boxes &boxes = boxes_;
        QTimer::singleShot(modalWait, [] { QVERIFY(QApplication::activeModalWidget() == nullptr); });
        QCOMPARE(boxes.ShowMBox(u"Wirklich?"_s, false, 3, u"Bestätigen"_s, BoxStyle::Confirm), 0);
        QTest::qWait(2 * modalWait);
    }

    void questionButtons_data()
    {
        columns<int, QStringList>("code", "captions");
        QTest::newRow("0") << 0 << QStringList{u"OK"_s};
        QTest::newRow("3") << 3 << QStringList{u"OK"_s, u"Abbrechen"_s};
        QTest::newRow("4") << 4 << QStringList{u"Yes"_s, u"No"_s};
        QTest::newRow("6") << 6 << QStringList{u"Exit"_s, u"No way !"_s};
    }
    void questionButtons()
    {
        QFETCH(int, code);
        QFETCH(QStringList, captions);
        for (int index = 0; index < captions.size(); ++index) {
            const int answer =
                answered([&] { return boxes_.ShowMBox(u"?"_s, true, code, {}, BoxStyle::Prefix); },
                         [&](QWidget *box) {
                             QStringList found;
                             for (const PressButton *button : box->findChildren<PressButton *>())
                                 found << button->text();
                             QCOMPARE(found, captions);
                             QCOMPARE(box->windowTitle(), u"Wortel-Meister"_s);
                             QTest::mouseClick(buttonOf(box, u"But1(%1)"_s.arg(index)), Qt::LeftButton);
                         });
            QCOMPARE(answer, index);
        }
    }

    void keys_data()
    {
        columns<QString, Qt::Key, QString>("kind", "key", "answer");
        QTest::newRow("question, Enter") << u"MBox"_s << Qt::Key_Return << u"0"_s;
        QTest::newRow("question, keypad Enter") << u"MBox"_s << Qt::Key_Enter << u"0"_s;
        QTest::newRow("question, Esc") << u"MBox"_s << Qt::Key_Escape << u"1"_s;
        QTest::newRow("notice, Enter") << u"Info"_s << Qt::Key_Return << u"0"_s;
        QTest::newRow("notice, Esc") << u"Info"_s << Qt::Key_Escape << u"1"_s;
        QTest::newRow("input, Enter") << u"IBox"_s << Qt::Key_Return << u"vor"_s;
        QTest::newRow("input, Esc") << u"IBox"_s << Qt::Key_Escape << QString();
    }
    void keys()
    {
        QFETCH(QString, kind);
        QFETCH(Qt::Key, key);
        QFETCH(QString, answer);
        QCOMPARE(answered([&] { return answerOf(kind); }, [key](QWidget *box) { pressKey(box, key); }),
                 answer);
    }

    void heldEnterIsNoAnswer()
    {
        const int answer = question([](QWidget *box) {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
            QApplication::sendEvent(box, &held);
            QVERIFY(box->isVisible());
            pressKey(box, Qt::Key_Escape);
        });
        QCOMPARE(answer, 1);
    }

    void whatElseClosesABoxIsEsc_data()
    {
        columns<QString, QString>("kind", "answer");
        QTest::newRow("question") << u"MBox"_s << u"1"_s;
        QTest::newRow("notice") << u"Info"_s << u"1"_s;
        QTest::newRow("input") << u"IBox"_s << QString();
        QTest::newRow("word") << u"Word"_s << QString();
    }
    void whatElseClosesABoxIsEsc()
    {
        QFETCH(QString, kind);
        const std::function<void(QWidget *)> ways[] = {
            [](QWidget *box) { box->close(); },
            [](QWidget *box) { box->hide(); },
            [](QWidget *box) { qobject_cast<QDialog *>(box)->reject(); },
            [](QWidget *box) { box->windowHandle()->close(); },
        };
        for (const auto &way : ways)
            QTEST(answered([&] { return answerOf(kind); },
                           [&](QWidget *box) {
                               way(box);
                               QCoreApplication::processEvents();
                           }),
                  "answer");
    }

    void noticeClosesByItsSign_data()
    {
        columns<BoxSign, QString, QString>("style", "sign", "picture");
        QTest::newRow("SMILEY") << BoxSign::Smiley << u"Image1"_s << u":/icons/smiley.svg"_s;
        QTest::newRow("WRITE") << BoxSign::Write << u"Image2"_s << u":/icons/write.svg"_s;
        QTest::newRow("INFO") << BoxSign::Info << u"Image3"_s << u":/icons/information.svg"_s;
    }
    void noticeClosesByItsSign()
    {
        QFETCH(BoxSign, style);
        QFETCH(QString, sign);
        QFETCH(QString, picture);
        const auto press = [&](QWidget *box) {
            QCOMPARE(box->findChildren<PressButton *>().size(), 1);
            QVERIFY(buttonOf(box, sign) != nullptr);
            QVERIFY(QFile::exists(picture));
            QCOMPARE(buttonOf(box, sign)->icon().pixmap(56).toImage(), QIcon(picture).pixmap(56).toImage());
            QTest::mouseClick(buttonOf(box, sign), Qt::LeftButton);
        };
        QCOMPARE(answered([&] { return boxes_.ShowInfoBox(u"Die Liste ist leer"_s, style, {}); }, press), 0);
    }

    void typedTextComesBack()
    {
        Boxes &boxes = boxes_;
        const auto typeInto = [](const QString &button) {
            return [button](QWidget *box) {
                auto *entry = box->findChild<QLineEdit *>(u"Text1"_s);
                QCOMPARE(entry->selectedText(), u"alt"_s);
                QTest::keyClicks(entry, u"fahr"_s);
                QTest::mouseClick(buttonOf(box, button), Qt::LeftButton);
            };
        };
        QCOMPARE(answered([&] { return boxes.ShowIBox({}, BoxStyle::Wortel, u"alt"_s, {}); },
                          typeInto(u"But1(0)"_s)),
                 u"fahr"_s);
        QCOMPARE(answered([&] { return boxes.ShowIBox({}, BoxStyle::Wortel, u"alt"_s, {}); },
                          typeInto(u"But1(1)"_s)),
                 QString());
        QCOMPARE(answered([&] { return boxes.ShowWordBox({}, BoxStyle::Wortel, u"alt"_s, {}); },
                          typeInto(u"Check1"_s)),
                 u"fahr"_s);
    }

    void colours_data()
    {
        columns<QString, BoxStyle, QColor, QColor>("box", "style", "window", "message");
        const auto row = [](const QString &box, BoxStyle style, const QColor &window, const QColor &message) {
            QTest::addRow("%s %d", qPrintable(box), int(style)) << box << style << window << message;
        };
        row(u"MBox"_s, BoxStyle::Wortel, Qt::red, Qt::white);
        row(u"MBox"_s, BoxStyle::Confirm, Qt::white, Qt::blue);
        row(u"IBox"_s, BoxStyle::Suffix, Qt::blue, Qt::yellow);
        row(u"Info"_s, BoxStyle::Plain, Qt::white, Qt::blue);
    }
    void colours()
    {
        QFETCH(BoxStyle, style);
        QFETCH(QColor, window);
        QFETCH(QColor, message);
        QFETCH(QString, box);
        const auto look = [&](QWidget *shown) {
            const QImage picture = shown->grab().toImage();
            QCOMPARE(picture.pixelColor(8, picture.height() - 8), window); // beside the buttons
            QCOMPARE(picture.pixelColor(picture.width() / 2, 6), window);  // the strip
            const auto *area = shown->findChild<QScrollArea *>(u"Pic1"_s);
            const QRect words(area->mapTo(shown, QPoint()), area->size());
            QCOMPARE(mainColours(picture.copy(words)), (std::pair{window, message}));
            pressKey(shown, Qt::Key_Escape);
        };
        answered([&] { return answerOf(box, u"\u2588\u2588"_s, style); }, look);
    }

    void aBoxWithoutACornerStandsInTheMiddleOfTheScreen_data()
    {
        columns<QString>("box");
        for (const char *box : {"MBox", "Info", "IBox", "Word"})
            QTest::newRow(box) << QString::fromLatin1(box);
    }
    void aBoxWithoutACornerStandsInTheMiddleOfTheScreen()
    {
        QFETCH(QString, box);
        QWidget form;
        form.setGeometry(0, 0, 200, 100);
        form.show();
        form.activateWindow();
        const QPoint middle = form.screen()->availableGeometry().center();
        const auto look = [&](QWidget *shown) {
            QVERIFY2((shown->geometry().center() - middle).manhattanLength() <= 2,
                     qPrintable(QDebug::toString(shown->geometry())));
            pressKey(shown, Qt::Key_Escape);
        };
        answered([&] { return answerOf(box); }, look);
    }

    void aShadowNeverStaysOnAFrozenBoard_data()
    {
        columns<bool>("before"); // the box comes, or while it stands
        QTest::newRow("frozen before") << true;
        QTest::newRow("frozen meanwhile") << false;
    }
    void aShadowNeverStaysOnAFrozenBoard()
    {
        QFETCH(bool, before);
        QWidget form;
        form.setGeometry(QGuiApplication::primaryScreen()->geometry());
        auto *board = new PictureBox(&form);
        board->setGeometry(form.rect());
        board->setBackColour(Qt::cyan);
        board->cls();
        form.show();
        boxes_.setMainWindow(&form);
        const auto onScreen = [&] {
            QCoreApplication::processEvents();
            return form.screen()->grabWindow(form.winId()).toImage();
        };
        const QImage empty = onScreen();
        board->LockWindow(before);
        answered([&] { return answerOf(u"MBox"_s); },
                 [&](QWidget *box) {
                     QCOMPARE(onScreen() == empty, before); // a shadow on a live board only
                     board->LockWindow(true);
                     pressKey(box, Qt::Key_Escape);
                 });
        QVERIFY(onScreen() == empty);
        QVERIFY(!board->updatesEnabled());
    }

    void badTextsKeepTheButtonsOnTheScreen_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("one word of 10,000 characters") << QString(10000, u'x');
        QTest::newRow("10,000 line ends") << QString(10000, u'\n');
        QTest::newRow("emoji and marks")
            << (u"\U0001F600\u202E\u200Fמילה\u2066"_s + QChar(u'\0')).repeated(600);
        QTest::newRow("markup") << u"<img src='file:///etc/passwd'><h1>groß</h1>"_s.repeated(200);
        QTest::newRow("nothing") << QString();
    }
    void badTextsKeepTheButtonsOnTheScreen()
    {
        QFETCH(QString, text);
        Boxes &boxes = boxes_;
        const auto check = [](QWidget *box) {
            const QRect screen = box->screen()->availableGeometry();
            QVERIFY2(screen.contains(box->frameGeometry()), qPrintable(QDebug::toString(box->geometry())));
            const auto buttons = box->findChildren<QAbstractButton *>();
            for (const QAbstractButton *button : buttons) {
                if (button->isVisible() && qobject_cast<const PressButton *>(button))
                    QVERIFY(box->rect().contains(QRect(button->mapTo(box, QPoint(0, 0)), button->size())));
            }
            box->grab();
            pressKey(box, Qt::Key_Escape);
        };
        answered([&] { return boxes.ShowMBox(text, true, 3, text, BoxStyle::Prefix); }, check);
        answered([&] { return boxes.ShowInfoBox(text, BoxSign::Write, text); }, check);
        answered([&] { return boxes.ShowIBox(text, BoxStyle::Wortel, text, text); }, check);
        answered([&] { return boxes.ShowWordBox(text, BoxStyle::Plain, text, text, 5000, 5000); }, check);
        answered([&] { return int(boxes.plainBox(Boxes::Icon::Warning, text, text)); }, check);
    }

    void longTextScrollsByKeys()
    {
        answered([&] { return boxes_.ShowMBox(u"Zeile\n"_s.repeated(200), true, 3, {}, BoxStyle::Confirm); },
                 [](QWidget *box) {
                     QScrollBar *bar = box->findChild<QScrollArea *>()->verticalScrollBar();
                     QVERIFY(bar->maximum() > 0);
                     pressKey(box, Qt::Key_PageDown);
                     QVERIFY(bar->value() > 0);
                     pressKey(box, Qt::Key_Escape);
                 });
    }

    void movesByItsTitle()
    {
        question([](QWidget *box) {
            auto *strip = box->findChild<QLabel *>(u"Label3"_s);
            const QPoint before = box->pos();
            const QPoint grip(10, 10);
            const QPoint start = strip->mapToGlobal(grip);
            QTest::mousePress(strip, Qt::LeftButton, {}, grip);
            const auto drag = [&](const QPoint &by) {
                QMouseEvent move(QEvent::MouseMove, grip, start + by, Qt::NoButton, Qt::LeftButton, {});
                QApplication::sendEvent(strip, &move);
            };
            drag({40, 25});
            QCOMPARE(box->pos(), before + QPoint(40, 25));
            drag({100000, 100000});
            QVERIFY(box->screen()->availableGeometry().contains(box->geometry()));
            QTest::mouseRelease(strip, Qt::LeftButton, {}, grip);
            pressKey(box, Qt::Key_Escape);
        });
    }

    void plainBoxHasGermanButtons_data()
    {
        // press: empty: Esc
        columns<Boxes::Buttons, QString, Boxes::Answer>("buttons", "press", "answer");
        QTest::newRow("OK, Esc") << Boxes::Buttons::Ok << QString() << Boxes::Answer::Ok;
        QTest::newRow("Ja") << Boxes::Buttons::YesNo << u"Ja"_s << Boxes::Answer::Yes;
        QTest::newRow("Ja oder Nein, Esc") << Boxes::Buttons::YesNo << QString() << Boxes::Answer::No;
        QTest::newRow("Abbrechen") << Boxes::Buttons::YesNoCancel << u"Abbrechen"_s << Boxes::Answer::Cancel;
    }
    void plainBoxHasGermanButtons()
    {
        QFETCH(Boxes::Buttons, buttons);
        QFETCH(QString, press);
        const auto ask = [&] {
            return boxes_.plainBox(Boxes::Icon::Question, u"Titel"_s, u"<b>Text</b>"_s, buttons);
        };
        const auto given = answered(ask, [&](QWidget *widget) {
            auto *box = qobject_cast<QMessageBox *>(widget);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->defaultButton()->text(), buttons == Boxes::Buttons::Ok ? u"OK"_s : u"Ja"_s);
            if (press.isEmpty())
                QTest::keyClick(box, Qt::Key_Escape);
            for (QAbstractButton *button : box->buttons()) {
                if (!press.isEmpty() && button->text() == press)
                    button->click();
            }
        });
        QTEST(given, "answer");
    }

private:
    /// What the box of that name answers, as a text.
    QString answerOf(const QString &box, const QString &text = u"?"_s, BoxStyle style = BoxStyle::Prefix)
    {
        Boxes &boxes = boxes_;
        if (box == u"MBox"_s)
            return QString::number(boxes.ShowMBox(text, true, 3, {}, style));
        if (box == u"Info"_s)
            return QString::number(boxes.ShowInfoBox(text, BoxSign::Info, {}));
        return box == u"IBox"_s ? boxes.ShowIBox(text, style, u"vor"_s, {})
                                : boxes.ShowWordBox(text, style, u"vor"_s, {});
    }

    /// Asks with two buttons and lets `act` answer.
    int question(const std::function<void(QWidget *)> &act, const QString &text = u"?"_s,
                 BoxStyle style = BoxStyle::Confirm)
    {
        return answered([&] { return boxes_.ShowMBox(text, true, 3, {}, style); }, act);
    }

    RealBoxes boxes_;
};

WORTEL_TEST(BoxesTest)
#include "tst_boxes.moc"
