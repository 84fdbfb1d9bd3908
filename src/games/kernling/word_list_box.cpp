// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/word_list_box.h"

#include <QDrag>
#include <QMimeData>

WordListBox::WordListBox(QWidget *parent)
    : StoreList(parent)
{
    setSelectionMode(ExtendedSelection);
    setDragEnabled(true);
}

void WordListBox::startDrag(Qt::DropActions)
{
    const QStringList words = selectedWords();
    if (words.isEmpty() || !whileDragging)
        return;
    whileDragging([&] {
        auto *drag = new QDrag(this);
        auto *text = new QMimeData;
        text->setText(words.join(u' '));
        drag->setMimeData(text);
        drag->exec(Qt::CopyAction);
    });
}
