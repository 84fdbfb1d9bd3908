// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_desk.h"

#include "games/kernling/kernling_controls.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/word_lists.h"
#include "widgets/plain_tool_tip.h"
#include "widgets/store_list.h"

#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

void KernlingDesk::tell(const QString &text) const
{
    ground.boxes.ShowInfoBox(text, BoxSign::Info, product::name);
}

void KernlingDesk::showTitle(const QString &title) const
{
    constexpr int mostLetters = 60;
    const QString shown = title.simplified().left(mostLetters).replace(u'&', u"&&"_s);
    controls.textGroup->setTitle(shown.isEmpty() ? u"Text"_s : u"Text: "_s + shown);
}

void KernlingDesk::Init() { Init2(mainLists.CurrentWortelFile); }

void KernlingDesk::Init2(const QString &path)
{
    Procedure step{ground.log, "Init2", "FrmKernling"};
    step([&] { lists.wortellist.clear(); });
    if (IsTextFile(path))
        step([&] { lists.wortellist.addAll(readListFile(path)); });
    controls.wortellist->setListIndex(-1); // the rows are other stems now
    controls.Label16->setText(listBaseName(path));
    controls.Label16->setToolTip(plainToolTip(listBaseName(path))); // the panel may be too narrow for it
    const int stems = lists.wortellist.count();
    controls.Label17->setText(stems == 0   ? u"keine Wortstämme"_s
                              : stems == 1 ? u"1 Wortstamm"_s
                                           : u"%1 Wortstämme"_s.arg(stems));
}
