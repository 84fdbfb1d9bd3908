// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/message_box.h"

#include "widgets/press_button.h"

#include <QIcon>

namespace {

constexpr int signSize = 56; ///< pixels

} // namespace

MBox::MBox(const QString &prompt, int buttons, const QString &title, BoxStyle style, QWidget *owner)
    : BoxWindow(boxstyle::coloursOf(style), title, prompt, owner)
{
    setObjectName(QStringLiteral("MBox"));
    const boxstyle::ButtonsRow row = boxstyle::buttonsOf(buttons);
    addButton(QString::fromUtf16(row.first), 0);
    if (row.second != nullptr)
        addButton(QString::fromUtf16(row.second), 1);
}

frmMboxRetype::frmMboxRetype(const QString &prompt, BoxSign signKind, const QString &title, QWidget *owner)
    : BoxWindow(boxstyle::notice, title, prompt, owner)
{
    setObjectName(QStringLiteral("frmMboxRetype"));
    auto *sign = new PressButton(this);
    sign->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    sign->setText(QStringLiteral("OK"));
    sign->setFace(boxstyle::notice.button, boxstyle::notice.buttonText);
    sign->setIconSize(QSize(signSize, signSize));
    sign->setFixedSize(signSize + 28, signSize + 38);
    sign->setCursor(Qt::PointingHandCursor);
    QFont bold = font();
    bold.setPixelSize(15);
    bold.setBold(true);
    sign->setFont(bold);
    if (const auto row = boxstyle::signOf(signKind)) {
        sign->setObjectName(QString::fromUtf16(row->control));
        sign->setIcon(QIcon(QString::fromUtf16(row->picture)));
    }
    sign->setAccessibleName(QStringLiteral("OK"));
    connect(sign, &QAbstractButton::clicked, this, [this] { done(0); });
    addSign(sign);
}
