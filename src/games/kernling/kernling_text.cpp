// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_text.h"

#include "output/text_loading.h"
#include "widgets/long_press.h"

#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace {

constexpr int caretWidth = 2; ///< pixels
constexpr double zoomStep = 1.15;

bool isUndo(const QKeyEvent *event)
{
    return event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
}

bool isTyping(const QKeyEvent *event)
{
    const QString letters = event->text();
    return !letters.isEmpty() && (letters.front().isPrint() || letters.front() == u'\r');
}

/// Puts a blank where letters of `inserted` would touch those beside it.
QString apart(const QString &inserted, QChar before, QChar behind)
{
    const auto touch = [](QChar one, QChar other) {
        return one.isLetterOrNumber() && other.isLetterOrNumber();
    };
    QString result = inserted;
    if (!inserted.isEmpty() && touch(before, inserted.front()))
        result.prepend(u' ');
    if (!inserted.isEmpty() && touch(inserted.back(), behind))
        result.append(u' ');
    return result;
}

} // namespace

/// Keeps the first visible line where it is, and the window from drawing, while the text is changed. A change
/// that spans more of the text than lies in front of the window's end would lay all of it out at once: then
/// only what is seen is laid out, and the rest from the event loop, as when a text is loaded.
class KernlingText::KeptView
{
public:
    /// `span` is how many letters lie between the first and the last change.
    KeptView(KernlingText &text, int span)
        : text_(text)
        , first_(text.verticalScrollBar()->value())
        , lastSeen_(text.cursorForPosition(text.viewport()->rect().bottomRight()).position())
        , page_(text.document()->pageSize())
        , laidOutLater_(lastSeen_ < span)
        , updates_(text.updatesEnabled())
    {
        text_.setUpdatesEnabled(false);
        if (laidOutLater_)
            text_.document()->setPageSize(QSizeF(0, 0)); // without a page nothing is laid out
    }
    ~KeptView()
    {
        if (laidOutLater_)
            text_.document()->setPageSize(page_);
        QTextCursor seen(text_.document());
        seen.setPosition(lastSeen_);
        text_.cursorRect(seen); // lays out all in front of it
        // Colours change no heights, so the place is the same, and the bar will be as long as it was.
        QScrollBar *bar = text_.verticalScrollBar();
        bar->setMaximum(std::max(bar->maximum(), first_));
        bar->setValue(first_);
        text_.setUpdatesEnabled(updates_);
    }
    KeptView(const KeptView &) = delete;
    KeptView &operator=(const KeptView &) = delete;

private:
    KernlingText &text_;
    int first_;
    int lastSeen_; ///< position
    QSizeF page_;
    bool laidOutLater_;
    bool updates_;
};

KernlingText::KernlingText(QWidget *parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setCursorWidth(caretWidth);
    setTextFont(QStringLiteral("Arial"));
    LongPress::offer(viewport());
    QPalette colours = palette(); // a marking is seen as well while a tool has the keyboard
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);
}

void KernlingText::setLocked(bool locked)
{
    locked_ = locked;
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextEditorInteraction);
    setCursorWidth(caretWidth);
    hideCaret();
}

void KernlingText::hideCaret()
{
    if (locked_)
        setCursorWidth(0);
}

QString KernlingText::selectedText() const
{
    return textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

KernlingText::Run KernlingText::selection() const
{
    const QTextCursor cursor = textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void KernlingText::select(const Run &run)
{
    const int end = document()->characterCount() - 1;
    QTextCursor cursor(document());
    cursor.setPosition(std::clamp(run.start, 0, end));
    cursor.setPosition(std::clamp(run.start + run.length, 0, end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void KernlingText::replaceText(const QString &text)
{
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.setBlockFormat({});
    cursor.insertText(textForBox(text), QTextCharFormat());
    cursor.endEditBlock();
    select({0, 0});
}

void KernlingText::setTextFont(const QString &family)
{
    QFont letters = font();
    letters.setFamily(family);
    setFont(letters);
    applyLetterSize();
}

void KernlingText::setLetterSize(int pixels)
{
    letterSize_ = pixels;
    applyLetterSize();
}

void KernlingText::zoomLetters(int steps)
{
    const auto sizeAt = [this](int zoom) { return letterSize_ * std::pow(zoomStep, zoom); };
    const int wanted = zoom_ + steps;
    if ((steps > 0 && sizeAt(wanted) > largestLetters) || (steps < 0 && sizeAt(wanted) < smallestLetters))
        return;
    zoom_ = wanted;
    applyLetterSize();
}

void KernlingText::applyLetterSize()
{
    const double size = letterSize_ * std::pow(zoomStep, zoom_);
    QFont letters = font();
    letters.setPixelSize(std::clamp(static_cast<int>(std::lround(size)), smallestLetters, largestLetters));
    setFont(letters);
}

void KernlingText::paintRuns(const std::vector<Run> &runs, const QColor &background, bool goesOnFrom)
{
    if (runs.empty())
        return;
    const KeptView view(*this, runs.back().start - runs.front().start);
    QTextCharFormat painted;
    painted.setBackground(background);
    painted.setForeground(Qt::white);
    QTextCursor cursor(document());
    goesOnFrom ? cursor.joinPreviousEditBlock() : cursor.beginEditBlock();
    for (const Run &run : runs) {
        cursor.setPosition(run.start);
        cursor.setPosition(run.start + run.length, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(painted);
    }
    cursor.endEditBlock();
}

void KernlingText::unpaint(const Run &run, bool goesOnFrom)
{
    struct Piece
    {
        int start, end;
        QTextCharFormat format;
    };
    std::vector<Piece> painted;
    const int end = run.start + run.length;
    for (QTextBlock block = document()->findBlock(run.start); block.isValid() && block.position() < end;
         block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment piece = at.fragment();
            const int from = std::max(piece.position(), run.start);
            const int to = std::min(piece.position() + piece.length(), end);
            if (from < to && piece.charFormat().hasProperty(QTextFormat::BackgroundBrush))
                painted.push_back({from, to, piece.charFormat()});
        }
    }
    if (painted.empty())
        return;
    const KeptView view(*this, painted.back().end - painted.front().start);
    QTextCursor cursor(document());
    goesOnFrom ? cursor.joinPreviousEditBlock() : cursor.beginEditBlock();
    for (Piece &piece : painted) {
        piece.format.clearBackground();
        piece.format.clearForeground(); // white letters would be lost on the paper
        cursor.setPosition(piece.start);
        cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
    cursor.endEditBlock();
}

void KernlingText::unpaintAll() { unpaint({0, document()->characterCount()}); }

QVariant KernlingText::loadResource(int, const QUrl &) { return {}; }

void KernlingText::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        hideCaret();
        event->accept();
        emit rightPressed(event->position().toPoint());
        return;
    }
    // A press on what is marked begins a new marking; it would drag the letters away.
    if (event->button() == Qt::LeftButton && !(event->modifiers() & Qt::ShiftModifier)) {
        QTextCursor cursor = textCursor();
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    QTextEdit::mousePressEvent(event);
    hideCaret();
}

void KernlingText::mouseMoveEvent(QMouseEvent *event)
{
    QTextEdit::mouseMoveEvent(event);
    hideCaret();
}

void KernlingText::mouseReleaseEvent(QMouseEvent *event)
{
    QTextEdit::mouseReleaseEvent(event);
    hideCaret();
    if (event->button() == Qt::LeftButton && !LongPress::takesBack(*event))
        emit marked();
}

void KernlingText::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTextEdit::mouseDoubleClickEvent(event);
    hideCaret();
}

void KernlingText::contextMenuEvent(QContextMenuEvent *event)
{
    // The mouse's menu came with the press.
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit rightPressed(cursorRect().bottomRight());
    event->accept();
}

void KernlingText::keyPressEvent(QKeyEvent *event)
{
    if (locked_) {
        setCursorWidth(caretWidth); // who marks with keys has to see where
        if (isUndo(event)) {
            event->accept();
            return;
        }
    }
    if (event->key() == Qt::Key_Shift && !event->isAutoRepeat())
        beforeShift_ = selection();
    if (isTyping(event))
        typeUnpainted([&] { QTextEdit::keyPressEvent(event); });
    else
        QTextEdit::keyPressEvent(event);
}

void KernlingText::inputMethodEvent(QInputMethodEvent *event)
{
    typeUnpainted([&] { QTextEdit::inputMethodEvent(event); });
}

/// What is typed is no part of a painted run, neither behind one nor in its place.
void KernlingText::typeUnpainted(const std::function<void()> &type)
{
    const Run replaced = selection();
    QTextCharFormat format = currentCharFormat();
    if (!locked_ && replaced.length == 0 && format.hasProperty(QTextFormat::BackgroundBrush)) {
        format.clearBackground();
        format.clearForeground();
        setCurrentCharFormat(format);
    }
    type();
    const Run now = selection();
    if (!locked_ && replaced.length > 0 && now.length == 0 && now.start > replaced.start)
        unpaint({replaced.start, now.start - replaced.start}, true);
}

void KernlingText::keyReleaseEvent(QKeyEvent *event)
{
    QTextEdit::keyReleaseEvent(event);
    if (event->key() != Qt::Key_Shift || event->isAutoRepeat())
        return;
    const Run now = selection();
    if (now.length > 0 && (now.start != beforeShift_.start || now.length != beforeShift_.length))
        emit marked();
}

void KernlingText::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QTextEdit::wheelEvent(event);
        return;
    }
    event->accept();
    if (event->angleDelta().y() != 0)
        zoomLetters(event->angleDelta().y() > 0 ? 1 : -1);
}

void KernlingText::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls()) {
        event->setDropAction(Qt::CopyAction); // a source that moves would delete its file
        event->setAccepted(!locked_);
        return;
    }
    QTextEdit::dragEnterEvent(event);
}

void KernlingText::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->mimeData()->hasUrls()) {
        event->setDropAction(Qt::CopyAction);
        event->setAccepted(!locked_);
        return;
    }
    QTextEdit::dragMoveEvent(event);
}

void KernlingText::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasUrls()) {
        dropping_ = true;
        QTextEdit::dropEvent(event);
        dropping_ = false;
        return;
    }
    event->setDropAction(Qt::CopyAction);
    const QUrl url = event->mimeData()->urls().value(0);
    event->setAccepted(!locked_ && url.isLocalFile());
    if (event->isAccepted())
        emit fileDropped(url.toLocalFile());
}

bool KernlingText::canInsertFromMimeData(const QMimeData *source) const
{
    return !locked_ && source->hasText();
}

void KernlingText::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source))
        return;
    QString inserted = textForBox(source->text());
    const Run place = selection();
    if (dropping_) // words, not letters for the middle of one
        inserted = apart(inserted, document()->characterAt(place.start - 1),
                         document()->characterAt(place.start + place.length));
    textCursor().insertText(inserted, QTextCharFormat());
}
