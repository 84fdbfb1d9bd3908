// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/about_window.h"

#include "platform/product.h"
#include "widgets/gradient.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel *line(const QString &text, int pixelSize, bool bold, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

/// Both files lie among the documents of an installed copy, and beside the sources otherwise.
QString whereToRead()
{
    const QFileInfo notice(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/../share/doc/wortel-meister/NOTICE"));
    const QString folder =
        notice.exists() ? QStringLiteral(" im Ordner\n") + notice.canonicalPath() : QString();
    return QStringLiteral("Einzelheiten stehen in den Dateien NOTICE und LICENSE") + folder + u'.';
}

} // namespace

fAbout::fAbout(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("fAbout"));
    setWindowTitle(QStringLiteral("Über Wortel-Meister"));

    auto *panel = new GradientPanel(this);
    auto *icon = new QLabel(panel);
    icon->setPixmap(QIcon(QStringLiteral(":/icons/wortel-meister.svg")).pixmap(96, 96));
    icon->setAlignment(Qt::AlignCenter);
    auto *inner = new QVBoxLayout(panel);
    inner->setContentsMargins(28, 18, 28, 18);
    inner->addWidget(icon);
    inner->addWidget(line(product::name, 26, true, panel));
    inner->addWidget(line(QStringLiteral("Version ") + product::paddedVersion(), 13, false, panel));
    inner->addWidget(
        line(QStringLiteral("Ein Werkzeug zum Erkennen von Wortstrukturen\nSpiel mit Wortbausteinen"), 14,
             false, panel));
    inner->addWidget(
        line(QStringLiteral("Freie Software unter der GNU General Public License, Version 3 oder später.\n"
                            "Die Wörterbücher sind aus dem deutschen Hunspell-Wörterbuch (frami) gemacht:\n"
                            "Björn Jacke, Franz Michael Baumann.\n") +
                 whereToRead(),
             12, false, panel));

    auto *close = new QPushButton(QStringLiteral("Schließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 10);
    outer->addWidget(panel);
    outer->addWidget(close, 0, Qt::AlignCenter);
    outer->setSizeConstraint(QLayout::SetFixedSize);
}
