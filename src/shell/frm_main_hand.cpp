// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window itself does for the hand that works in it: the windows that its tools open, Esc, files
// that are dropped, and short notes, also of why a tool rests.
#include "shell/frm_main.h"

#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "shell/about_window.h"
#include "shell/rooms.h"
#include "widgets/picture_box.h"
#include "widgets/short_note.h"
#include "widgets/store_list.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>

namespace {

/// What a hand does, also with a pen, a finger or a file that it drops.
bool isOfAHand(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::TabletMove:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// What a tool at rest says, by the index of its reason. A report goes by itself at once.
constexpr const char16_t *restNotes[] = {note::wholeList,   note::afterDictionary, nullptr,
                                         note::afterRetype, note::afterRetype,     note::afterRetype,
                                         note::afterGame,   note::afterBuilding,   note::afterWork};
static_assert(std::size(restNotes) == static_cast<std::size_t>(Reason::Work) + 1);

} // namespace

void frmMain::showOptions()
{
    const int filter = rooms_->optTypes.selected();
    rooms_->options.edit();
    if (!ground_.gate.isClosing())
        rooms_->canvas.RecallFilter(filter);
}

void frmMain::showAbout()
{
    if (const Gate::Passage open = ground_.gate.openBox())
        fAbout(this).exec();
    if (!ground_.gate.isClosing())
        rooms_->optTypes.select(TileFilter::all);
}

void frmMain::showHelp() { help_.open(); }

/// Esc: a tip lies over the lists, the lists over the strip. With nothing open the keyboard comes to the
/// board, and there the chosen tile is left.
void frmMain::closeOnTop()
{
    Rooms &r = *rooms_;
    if (r.tips.isShown()) {
        r.tips.hideTip();
        return;
    }
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return;
    if (!controls_.CorrectWordList->isHidden())
        r.wordList.Show_Result();
    else if (r.dictionary.isOpen())
        r.dictionary.toggle();
    else if (r.morphemeLists.isAnyOpen())
        r.morphemeLists.hideAll();
    else if (play_.RetypeActive())
        r.retype.breakOff();
    else if (!controls_.picCanvas->hasFocus())
        controls_.picCanvas->setFocus(Qt::TabFocusReason);
    else
        r.focus.choose(nullptr);
}

/// In the window that has the hand: one that lies over this one would cover the note.
void frmMain::showNote(const QString &text)
{
    constexpr int narrowest = 500; // a box is too small for it
    QWidget *above = QApplication::activeModalWidget();
    if (above == nullptr)
        above = QApplication::activeWindow(); // Paarlon's, for one
    if (above == nullptr || above == this || above->width() < narrowest) {
        note_->tell(text);
        return;
    }
    auto *note = above->findChild<ShortNote *>({}, Qt::FindDirectChildrenOnly);
    (note != nullptr ? note : new ShortNote(above))->tell(text);
}

/// A tool that rests, greyed or not, hears of no press.
void frmMain::tellWhyAtRest(const QWidget *tool)
{
    const std::optional<Reason> reason = sheet_.restsFor(tool);
    const char16_t *text = reason ? restNotes[static_cast<std::size_t>(*reason)] : nullptr;
    if (text != nullptr)
        ground_.notes.tell(text);
}

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    // A window that closes takes nothing any more, and neither does any other of the program's.
    if (ground_.gate.isClosing() && isOfAHand(event->type()))
        return true;
    // The welcome has been read when the first press or key comes.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        controls_.txtWelcomeMsg->hide();
    if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType())
        tellWhyAtRest(static_cast<const QWidget *>(watched));
    return QWidget::eventFilter(watched, event);
}

void frmMain::dragEnterEvent(QDragEnterEvent *event)
{
    if (!event->mimeData()->hasUrls())
        return;
    event->setDropAction(Qt::CopyAction); // a source that moves would delete its file
    event->accept();
}

void frmMain::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty() || !urls.first().isLocalFile())
        return;
    const QString path = urls.first().toLocalFile();
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(BackgroundPicture::isPicture(path));
    ground_.gate.whenFree([this, path] { rooms_->background.drop(path); });
}

/// What has the keyboard and goes or rests gives it to the board, never to a tool that the next Enter would
/// press.
bool frmMain::focusNextPrevChild(bool next)
{
    const QWidget *focus = focusWidget();
    if (focus == nullptr || (focus->isVisible() && focus->isEnabled()))
        return QWidget::focusNextPrevChild(next);
    controls_.picCanvas->setFocus(Qt::OtherFocusReason);
    return true;
}
