// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soak_hand.h"

#include "board/hand/commands.h"
#include "dialogs/wrapped_text.h"
#include "platform/files.h"
#include "shell/frm_main.h"
#include "shell/rooms.h"
#include "support/test_house.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include <array>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60000;     ///< milliseconds for coming to rest, or for closing
constexpr int reportStands = 15000; ///< milliseconds, at most; tools rest meanwhile
constexpr unsigned hangs = 240;     ///< seconds in one step: the process ends then
constexpr int mostTiles = 150;      ///< on a fuller board placing takes long
constexpr int calmSteps = 6;        ///< in a row: what waited for a free gate is done by then
constexpr int removeAllTiles = 1503;

struct Stroke
{
    int key;
    const char16_t *text;
};
constexpr std::array strokes{
    Stroke{Qt::Key_Escape, u""},      Stroke{Qt::Key_Return, u"\r"},    Stroke{Qt::Key_Enter, u"\r"},
    Stroke{Qt::Key_Tab, u"\t"},       Stroke{Qt::Key_Backtab, u""},     Stroke{Qt::Key_Space, u" "},
    Stroke{Qt::Key_Left, u""},        Stroke{Qt::Key_Right, u""},       Stroke{Qt::Key_Up, u""},
    Stroke{Qt::Key_Down, u""},        Stroke{Qt::Key_Home, u""},        Stroke{Qt::Key_End, u""},
    Stroke{Qt::Key_PageUp, u""},      Stroke{Qt::Key_PageDown, u""},    Stroke{Qt::Key_Delete, u"\x7f"},
    Stroke{Qt::Key_Backspace, u"\b"}, Stroke{Qt::Key_F1, u""},          Stroke{Qt::Key_F10, u""},
    Stroke{Qt::Key_Menu, u""},        Stroke{Qt::Key_Adiaeresis, u"ä"}, Stroke{Qt::Key_ssharp, u"ß"},
    Stroke{Qt::Key_0, u"0"},          Stroke{Qt::Key_7, u"7"},          Stroke{Qt::Key_Minus, u"-"},
    Stroke{Qt::Key_Comma, u","},      Stroke{Qt::Key_QuoteDbl, u"\""},  Stroke{Qt::Key_Percent, u"%"},
};
constexpr std::array shifts{Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
                            Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

QString nameOf(const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
}

/// With all that it says.
QString described(const QWidget *window)
{
    QStringList words{nameOf(window), window->windowTitle()};
    for (const QLabel *label : window->findChildren<QLabel *>())
        words << label->text();
    for (const WrappedText *message : window->findChildren<WrappedText *>())
        words << message->text();
    return words.join(u'|');
}

} // namespace

SoakHand::SoakHand(frmMain &form, SoakGround &ground, std::uint32_t seed, QFile &trail)
    : form_(form)
    , ground_(ground)
    , random_(seed)
    , trail_(trail)
{
    connect(&form, &frmMain::unloaded, this, [this] { ended_ = true; });
}

QString SoakHand::play(int events)
{
    events_ = events;
    untilRest_ = 10 + below(100);
    stepLater();
    loop_.exec();
    alarm(0);
    return fault_;
}

void SoakHand::note(const QString &what) { trail_.write(what.toUtf8() + '\n'); }

void SoakHand::fail(const QString &what)
{
    if (fault_.isEmpty())
        fault_ = u"after %1 events: %2"_s.arg(done_).arg(what);
    note(what);
}

/// The next step is due before this one has come back: then it plays within whatever this one has opened.
void SoakHand::stepLater()
{
    QTimer::singleShot(0, this, [this] { step(); });
}

void SoakHand::step()
{
    alarm(hangs);
    if (ended_) {
        loop_.quit();
        return;
    }
    stepLater();
    if (ground_.pump.holdsInput())
        return;
    if (!ground_.pump.fault.isEmpty())
        fail(ground_.pump.fault);
    if (done_ >= events_ || !fault_.isEmpty())
        endIt();
    else if (calm_ >= 0)
        rest();
    else
        act();
}

void SoakHand::act()
{
    ++done_;
    if (--untilRest_ <= 0) {
        calm_ = 0;
        since_.start();
        return;
    }
    const int what = below(1000);
    if (what < 550)
        pointer();
    else if (what < 800)
        key();
    else if (what < 900)
        command();
    else if (what < 920)
        resizeWindow();
    else if (what < 940)
        secondStart();
    else if (what < 950)
        dropFile();
    else if (what < 970)
        closeFront();
    else if (what < 980)
        QApplication::setActiveWindow(oneIn(2) ? nullptr : front());
    else
        ground_.clock.ahead += 1000 * below(oneIn(4) ? 300 : 10);
}

/// Takes its hands off, puts away what stands over the board, and looks.
void SoakHand::rest()
{
    if (since_.hasExpired(patience)) {
        fail(u"it does not come to rest; in front stands "_s + described(front()));
        return;
    }
    if (held_ != Qt::NoButton) {
        letGo();
    } else if (front() != &form_ || !ground_.gate.isFree()) {
        calm_ = 0;
        // Esc in the question whether a work shall go on lets it go on.
        const int how = below(4);
        if (front() != &form_ && how == 0)
            front()->close();
        else
            sendKey(front(), how == 1 ? Qt::Key_Return : Qt::Key_Escape, Qt::NoModifier, {});
    } else if (++calm_ >= calmSteps) {
        QString trouble = TestHouse::troubleOf(form_.rooms(), form_.controls(), form_.play(), ground_.gate);
        if (!ground_.callers.look() || ground_.link.waiting() > 0)
            trouble += u"a later start's sessions were not taken"_s;
        if (!trouble.isEmpty() && !since_.hasExpired(reportStands)) {
            calm_ = 0;
            return;
        }
        if (!trouble.isEmpty())
            fail(trouble);
        calm_ = -1;
        untilRest_ = 10 + below(200);
        if (form_.rooms().store.count() > mostTiles)
            if (const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play))
                form_.rooms().router.run(command::From::MainMenu, removeAllTiles, {});
    }
}

/// Closes the window wherever it is, and goes on playing in the closing one.
void SoakHand::endIt()
{
    if (!closing_) {
        note(u"close"_s);
        closing_ = true;
        since_.start();
        form_.close();
        return;
    }
    if (since_.hasExpired(patience))
        qFatal("the window does not close; in front stands %s; %s", qPrintable(described(front())),
               qPrintable(fault_));
    if (fault_.isEmpty() && playsOn_-- > 0)
        oneIn(2) ? pointer() : key();
}

QWidget *SoakHand::front() const
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return &form_;
}

/// Mostly the one in front; the others must look after themselves.
QWidget *SoakHand::anyWindow()
{
    if (!oneIn(8))
        return front();
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowHandle() != nullptr && window->windowType() != Qt::ToolTip)
            windows << window;
    return windows.isEmpty() ? &form_ : windows.at(below(static_cast<int>(windows.size())));
}

/// Tiles, tools, menu items, or just anywhere.
QPoint SoakHand::pointIn(QWidget *window)
{
    if (const auto *menu = qobject_cast<QMenu *>(window); menu != nullptr && !menu->isEmpty())
        return menu->actionGeometry(menu->actions().at(below(static_cast<int>(menu->actions().size()))))
            .center();
    const auto &tiles = form_.rooms().store.tiles();
    if (window == &form_ && !tiles.empty() && oneIn(3)) {
        const cWortel &tile = *tiles[static_cast<std::size_t>(below(static_cast<int>(tiles.size())))];
        return form_.controls().picCanvas->mapTo(&form_, QPoint(tile.xLeft() + 4, tile.yTop() + 12));
    }
    QWidgetList parts;
    if (!oneIn(3))
        for (QWidget *part : window->findChildren<QWidget *>())
            if (part->isVisible() && part->window() == window)
                parts << part;
    if (parts.isEmpty())
        return {below(window->width()), below(window->height())};
    const QWidget *part = parts.at(below(static_cast<int>(parts.size())));
    return part->mapTo(window, QPoint(below(part->width()), below(part->height())));
}

void SoakHand::sendMouse(QEvent::Type type, QWidget *window, const QPoint &point, Qt::MouseButton button)
{
    note(u"mouse %1 button %2 at %3,%4 of %5"_s.arg(int(type)).arg(button).arg(point.x()).arg(point.y()).arg(
        nameOf(window)));
    if (QWindow *native = window->windowHandle())
        qt_handleMouseEvent(native, point, window->mapToGlobal(point), held_, button, type,
                            oneIn(6) ? shifts[static_cast<std::size_t>(below(shifts.size()))]
                                     : Qt::NoModifier,
                            ++QTest::lastMouseTimestamp);
}

void SoakHand::sendKey(QWidget *window, int key, Qt::KeyboardModifiers shift, const QString &text)
{
    note(u"key %1 with %2 to %3"_s.arg(key, 0, 16).arg(int(shift), 0, 16).arg(nameOf(window)));
    const QPointer<QWindow> native = window->windowHandle();
    const int times = oneIn(12) ? 4 : 1;
    for (int i = 0; i < times && native != nullptr; ++i)
        qt_handleKeyEvent(native, QEvent::KeyPress, key, shift, text, i > 0);
    if (native != nullptr)
        qt_handleKeyEvent(native, QEvent::KeyRelease, key, shift, text);
}

void SoakHand::pointer()
{
    if (held_ == Qt::NoButton) {
        QWidget *window = anyWindow();
        const QPoint point = pointIn(window);
        if (oneIn(4)) {
            sendMouse(QEvent::MouseMove, window, point, Qt::NoButton);
            return;
        }
        pressed_ = window;
        at_ = point;
        held_ = oneIn(4) ? Qt::RightButton : Qt::LeftButton;
        const bool click = oneIn(2);
        sendMouse(QEvent::MouseButtonPress, window, at_, held_);
        if (click)
            letGo(); // also in what the press has opened and closed again
    } else if (oneIn(2) && pressed_ != nullptr) {
        at_ = pointIn(pressed_);
        sendMouse(QEvent::MouseMove, pressed_, at_, Qt::NoButton);
    } else {
        letGo();
    }
}

void SoakHand::letGo()
{
    const Qt::MouseButton button = std::exchange(held_, Qt::NoButton);
    if (button == Qt::NoButton)
        return;
    QWidget *window = pressed_ != nullptr && pressed_->isVisible() ? pressed_.data() : front();
    sendMouse(QEvent::MouseButtonRelease, window, at_, button);
}

void SoakHand::key()
{
    const auto shift = shifts[static_cast<std::size_t>(below(shifts.size()))];
    if (oneIn(2)) {
        const int letter = below(26);
        sendKey(anyWindow(), Qt::Key_A + letter, shift, QString(QChar(u'a' + letter)));
    } else {
        const Stroke &stroke = strokes[static_cast<std::size_t>(below(strokes.size()))];
        sendKey(anyWindow(), stroke.key, shift, QString::fromUtf16(stroke.text));
    }
}

/// Any row of the table, as if a menu had been opened at a tile, which no held button allows.
void SoakHand::command()
{
    if (front() != &form_)
        return;
    letGo();
    const auto table = command::table();
    const command::Command &row = table[static_cast<std::size_t>(below(static_cast<int>(table.size())))];
    note(u"command %1 from %2"_s.arg(row.id).arg(int(row.from)));
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return;
    const QPoint point = form_.controls().picCanvas->mapFrom(&form_, pointIn(&form_));
    form_.rooms().router.run(row.from, row.id,
                             row.from == command::From::Key ? Press{} : form_.rooms().router.pressAt(point));
}

void SoakHand::resizeWindow()
{
    const QSize size(300 + below(1700), 200 + below(900));
    note(u"size %1 x %2"_s.arg(size.width()).arg(size.height()));
    switch (below(6)) {
    case 0:
        form_.showMaximized();
        break;
    case 1:
        form_.showMinimized();
        break;
    case 2:
        form_.showNormal();
        break;
    default:
        front()->resize(size);
    }
}

void SoakHand::secondStart()
{
    const QStringList files = ground_.dialogs.files();
    QStringList arguments{files.at(below(static_cast<int>(files.size())))};
    if (oneIn(4))
        arguments << files.at(below(static_cast<int>(files.size())));
    else if (oneIn(4))
        arguments = oneIn(2) ? QStringList{u"/L"_s} : QStringList{u"quatsch"_s, u"/x"_s};
    if (oneIn(2))
        arguments.replaceInStrings(u"\\"_s, u"/"_s); // as a file manager gives them
    note(u"second start: "_s + arguments.join(u' '));
    if (oneIn(6)) {
        QByteArray rubbish(below(200), '\0');
        for (char &byte : rubbish)
            byte = static_cast<char>(below(oneIn(2) ? 256 : 2));
        ground_.callers.babble(rubbish, oneIn(2));
    } else if (!ground_.callers.call(arguments)) {
        note(u"cannot be reached"_s); // too many wait already; a real one tries again
    }
}

void SoakHand::dropFile()
{
    if (front() != &form_)
        return;
    const QStringList files = ground_.dialogs.files();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(nativePath(files.at(below(static_cast<int>(files.size())))))});
    note(u"drop "_s + data.urls().constFirst().toString());
    const QPoint point = pointIn(&form_);
    QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&form_, &enter);
    QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&form_, &drop);
}

void SoakHand::closeFront()
{
    QWidget *window = anyWindow();
    note(u"close "_s + nameOf(window));
    if (window != &form_)
        window->close();
}
