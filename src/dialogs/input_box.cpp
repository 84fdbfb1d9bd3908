// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/input_box.h"

#include "dialogs/wrapped_text.h"
#include "widgets/gradient.h"
#include "widgets/press_button.h"

#include <QLineEdit>
#include <QPainter>

namespace {

constexpr int entrySize = 20;   ///< pixels, the letters
constexpr int entryHeight = 40; ///< pixels
constexpr int entryWidth = 300; ///< pixels, at least
constexpr boxstyle::Colours wordList{boxstyle::white, paint::ink, paint::activeFrame, paint::face,
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
}

frmChgCorrectWords::frmChgCorrectWords(const QString &prompt, const QString &defaultText,
                                       const QString &title, QWidget *owner)
    : InputBox(wordList, title, prompt, defaultText, owner)
{
    setObjectName(QStringLiteral("frmChgCorrectWords"));
    message()->setObjectName(QStringLiteral("LblCaption"));
    findChild<PressButton *>(QStringLiteral("But1(0)"))->setObjectName(QStringLiteral("Check1"));
    setMessageAlignment(Qt::AlignLeft);
}

void frmChgCorrectWords::paintBackground(QPainter &painter) { gradient::paint(painter, rect()); }
