// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/real_boxes.h"

#include "dialogs/best_times_window.h"
#include "dialogs/high_score_window.h"
#include "dialogs/input_box.h"
#include "dialogs/message_box.h"
#include "platform/product.h"
#include "widgets/guards.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// While somebody is asked there is no hourglass, and then the window that was in front has the keyboard
/// again: no window manager may be there to give it back, or the box belonged to another window.
class Asking
{
public:
    Asking() = default;
    ~Asking()
    {
        if (front_ != nullptr && front_->isVisible() && !front_->isActiveWindow())
            front_->activateWindow();
    }
    Asking(const Asking &) = delete;
    Asking &operator=(const Asking &) = delete;

private:
    PlainPointer pointer_;
    QPointer<QWidget> front_ = QApplication::activeWindow();
};

QString titleOr(const QString &title) { return title.isEmpty() ? product::name : title; }

std::optional<QPoint> cornerOf(int left, int top)
{
    return left < 0 || top < 0 ? std::nullopt : std::optional(QPoint(left, top));
}

QMessageBox::Icon plainIcon(Boxes::Icon icon)
{
    switch (icon) {
    case Boxes::Icon::Information:
        return QMessageBox::Information;
    case Boxes::Icon::Warning:
        return QMessageBox::Warning;
    case Boxes::Icon::Critical:
        return QMessageBox::Critical;
    case Boxes::Icon::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

constexpr int letterSize = 15; ///< pixels

struct PlainButton
{
    Boxes::Answer answer;
    const char16_t *caption;
    QMessageBox::ButtonRole role;
};

constexpr std::array okButtons{PlainButton{Boxes::Answer::Ok, u"OK", QMessageBox::AcceptRole}};
constexpr std::array okCancelButtons{
    PlainButton{Boxes::Answer::Ok, u"OK", QMessageBox::AcceptRole},
    PlainButton{Boxes::Answer::Cancel, u"Abbrechen", QMessageBox::RejectRole}};
constexpr std::array yesNoButtons{PlainButton{Boxes::Answer::Yes, u"Ja", QMessageBox::YesRole},
                                  PlainButton{Boxes::Answer::No, u"Nein", QMessageBox::NoRole}};
constexpr std::array yesNoCancelButtons{
    PlainButton{Boxes::Answer::Yes, u"Ja", QMessageBox::YesRole},
    PlainButton{Boxes::Answer::No, u"Nein", QMessageBox::NoRole},
    PlainButton{Boxes::Answer::Cancel, u"Abbrechen", QMessageBox::RejectRole}};

/// The buttons in their order; the last one is what Esc means.
std::pair<const PlainButton *, const PlainButton *> plainButtons(Boxes::Buttons buttons)
{
    switch (buttons) {
    case Boxes::Buttons::Ok:
        break;
    case Boxes::Buttons::OkCancel:
        return {okCancelButtons.data(), okCancelButtons.data() + okCancelButtons.size()};
    case Boxes::Buttons::YesNo:
        return {yesNoButtons.data(), yesNoButtons.data() + yesNoButtons.size()};
    case Boxes::Buttons::YesNoCancel:
        return {yesNoCancelButtons.data(), yesNoCancelButtons.data() + yesNoCancelButtons.size()};
    }
    return {okButtons.data(), okButtons.data() + okButtons.size()};
}

} // namespace

QString textForPlainBox(const QString &text)
{
    constexpr int longestWord = 40;
    constexpr int longestLine = 60; ///< about what the box shows in one line
    constexpr int mostLines = 12;
    constexpr int tabColumns = 16;
    const QString ellipsis(QChar(0x2026));
    QString result;
    int word = 0;
    int column = 0;
    int line = 1;
    for (const QChar character : text) {
        if (character == u'\n' || column >= longestLine) {
            column = 0;
            if (++line > mostLines)
                return result + ellipsis;
        }
        word = character.isSpace() ? 0 : word + 1;
        if (word > longestWord && !character.isLowSurrogate()) {
            result += QChar(0x200B); // a place where the line may be broken, invisible
            word = 1;
        }
        result += character;
        column += character == u'\t' ? tabColumns : 1;
    }
    return result;
}

RealBoxes::RealBoxes(QWidget *mainWindow)
    : mainWindow_(mainWindow)
{}

RealBoxes::~RealBoxes() = default;

/// A window that is not modal can be closed in the middle of a box, so no box belongs to one.
QWidget *RealBoxes::owner() const
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return mainWindow_ != nullptr && mainWindow_->isVisible() ? mainWindow_.data() : nullptr;
}

Boxes::Answer RealBoxes::plainBox(Icon icon, const QString &title, const QString &text, Buttons buttons)
{
    const Asking asking;
    QWidget *const parent = owner();
    QMessageBox box(parent);
    if (parent == nullptr) // at the start: the splash would cover it
        box.setWindowFlag(Qt::WindowStaysOnTopHint);
    QFont letters = box.font();
    letters.setPixelSize(letterSize);
    box.setFont(letters);
    box.setTextFormat(Qt::PlainText);
    box.setIcon(plainIcon(icon));
    box.setWindowTitle(titleOr(title).simplified().left(60));
    box.setText(textForPlainBox(text));
    const auto [first, end] = plainButtons(buttons);
    // `buttons()` is sorted by role, so the first and the last are kept while they are made.
    QPushButton *standard = nullptr;
    QPushButton *last = nullptr;
    for (const PlainButton *row = first; row != end; ++row) {
        last = box.addButton(QString::fromUtf16(row->caption), row->role);
        if (standard == nullptr)
            standard = last;
    }
    box.setEscapeButton(last);
    box.setDefaultButton(standard);
    box.exec();
    const QAbstractButton *pressed = box.clickedButton();
    for (const PlainButton *row = first; row != end; ++row) {
        if (pressed != nullptr && pressed->text() == QStringView(row->caption))
            return row->answer;
    }
    return (end - 1)->answer;
}

int RealBoxes::ShowMBox(const QString &prompt, bool show, int buttons, const QString &title, BoxStyle style)
{
    if (!show)
        return 0;
    const Asking asking;
    return MBox(prompt, buttons, titleOr(title), style, owner()).ask();
}

int RealBoxes::ShowInfoBox(const QString &prompt, BoxSign sign, const QString &title)
{
    const Asking asking;
    return frmMboxRetype(prompt, sign, titleOr(title), owner()).ask();
}

QString RealBoxes::ShowIBox(const QString &prompt, BoxStyle kind, const QString &defaultText,
                            const QString &title, int left, int top)
{
    const Asking asking;
    return IBox(prompt, kind, defaultText, titleOr(title), owner()).askText(cornerOf(left, top));
}

QString RealBoxes::ShowWordBox(const QString &prompt, BoxStyle, const QString &defaultText,
                               const QString &title, int left, int top)
{
    const Asking asking;
    return frmChgCorrectWords(prompt, defaultText, titleOr(title), owner()).askText(cornerOf(left, top));
}

QString RealBoxes::ShowEnterName(const QString &title)
{
    const Asking asking;
    return frmEnterName(title, owner()).askName();
}

void RealBoxes::ShowHighScores(const HighScoreSheet &sheet)
{
    const Asking asking;
    frmHighScore(sheet, owner()).exec();
}

void RealBoxes::ShowBestTimes(const HighScoreSheet &sheet)
{
    const Asking asking;
    frmBestTimes(sheet, owner()).exec();
}
