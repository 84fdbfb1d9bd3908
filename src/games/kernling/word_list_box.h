// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/store_list.h"

#include <functional>

/// The work list of the stem game, the control `List1`: a list of which many words can be selected and
/// dragged into the text.
class WordListBox : public StoreList
{
    Q_OBJECT

public:
    explicit WordListBox(QWidget *parent = nullptr);

    /// Runs the drag that it is given; whoever owns the list keeps other things out meanwhile.
    std::function<void(const std::function<void()> &drag)> whileDragging;

protected:
    void startDrag(Qt::DropActions supportedActions) override;
};
