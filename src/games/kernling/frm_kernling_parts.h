// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/kernling/frm_kernling.h"
#include "games/kernling/frm_kernling_options.h"
#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_desk.h"
#include "games/kernling/kernling_text.h"
#include "games/kernling/kernling_work_view.h"
#include "games/kernling/locate_game.h"
#include "games/kernling/stem_marking.h"
#include "games/kernling/text_source.h"
#include "games/kernling/word_list_box.h"
#include "games/kernling/work_list.h"
#include "widgets/click_label.h"
#include "widgets/press_button.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

/// The parts of the stem game's window, in the order in which they stand on each other.
struct FrmKernling::Parts
{
    Parts(Ground &ground, const FrmKernling::Hall &hall, QWidget *window);

    KernlingControls controls;
    KernlingWorkView view;
    KernlingDesk desk;
    StemMarking marking;
    WorkList words;
    TextSource source;
    frmKernlingOptions options;
    LocateGame game;
    QMenu *mnuRTF = nullptr;
    QMenu *mnuWortelList = nullptr;
};
