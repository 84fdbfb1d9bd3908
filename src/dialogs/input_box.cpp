// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/input_box.h"

#include "dialogs/wrapped_text.h"
#include "widgets/gradient.h"
#include "widgets/press_button.h"

#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int entrySize = 20;   ///< pixels, the letters
constexpr int entryHeight = 40; ///< pixels
constexpr int entryWidth = 300; ///< pixels, at least
constexpr boxstyle::Colours onGradient{boxstyle::white, paint::ink, paint::activeFrame, paint::face,
                                       paint::ink};

} // namespace

InputBox::InputBox(const boxstyle::Colours &colours, const QString &title, const QString &prompt,
                   const QString &defaultText, QWidget *owner)
    : BoxWindow(colours, title, prompt, owner)
    , Text1_(new QLineEdit(this))
{
    Text1_->setObjectName(QStringLiteral("Text1"));
    Text1_->setAccessibleName(prompt.simplified());
    QFont letters = font();
    letters.setPixelSize(entrySize);
    Text1_->setFont(letters);
    Text1_->setMinimumSize(entryWidth, entryHeight);
    Text1_->setTextMargins(4, 0, 4, 0);
    Text1_->setText(defaultText);
    Text1_->selectAll();
    Text1_->setFocus();
    addEntry(Text1_);
}

void InputBox::addOkAndCancel()
{
    addButton(QStringLiteral("OK"), 0);
    addButton(QStringLiteral("Abbrechen"), 1);
}

QString InputBox::askText(std::optional<QPoint> corner)
{
    return ask(corner) == 0 ? Text1_->text() : QString();
}

IBox::IBox(const QString &prompt, BoxStyle kind, const QString &defaultText, const QString &title,
           QWidget *owner)
    : InputBox(boxstyle::coloursOf(kind), title, prompt, defaultText, owner)
{
    setObjectName(QStringLiteral("IBox"));
    addOkAndCancel();
}

GradientInputBox::GradientInputBox(const QString &title, const QString &prompt, const QString &defaultText,
                                   QWidget *owner)
    : InputBox(onGradient, title, prompt, defaultText, owner)
{
    message()->setObjectName(QStringLiteral("LblCaption"));
}

void GradientInputBox::paintBackground(QPainter &painter) { gradient::paint(painter, rect()); }

frmChgCorrectWords::frmChgCorrectWords(const QString &prompt, const QString &defaultText,
                                       const QString &title, QWidget *owner)
    : GradientInputBox(title, prompt, defaultText, owner)
{
    setObjectName(QStringLiteral("frmChgCorrectWords"));
    addOkAndCancel();
    findChild<PressButton *>(QStringLiteral("But1(0)"))->setObjectName(QStringLiteral("Check1"));
    setMessageAlignment(Qt::AlignLeft);
}

frmEnterName::frmEnterName(const QString &title, QWidget *owner)
    : GradientInputBox(
          title,
          QStringLiteral("Herzlichen Glückwunsch !\nDein Name wird in die Bestenliste aufgenommen "
                         "!\n\nGib bitte deinen Namen ein :"),
          QStringLiteral("Sieger"), owner)
{
    setObjectName(QStringLiteral("frmEnterName"));
    setWindowFlag(Qt::WindowStaysOnTopHint);
    Text1()->setMaxLength(longestName);
    PressButton *tick = addButton({}, 0);
    tick->setObjectName(QStringLiteral("Check1"));
    tick->setAccessibleName(QStringLiteral("Eintragen"));
    tick->setIcon(QIcon(QStringLiteral(":/icons/check-mark.svg")));
    addButton(QStringLiteral("OK"), 0)->setObjectName(QStringLiteral("Command1"));
}

QString frmEnterName::askName()
{
    ask();
    return Text1()->text();
}

void frmEnterName::showEvent(QShowEvent *event)
{
    InputBox::showEvent(event);
    QApplication::beep();
}
