// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/best_lists.h"

#include "games/paarlon/frm_best_times.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"

using namespace Qt::StringLiterals;

BestLists::BestLists(Ground &ground)
    : ground_(ground)
    , scores_(ground.store)
{}

void BestLists::GetBestTimes(const MemoryKind &kind, int clicks, const QString &message, QWidget *owner)
{
    Procedure step{ground_.log, "GetBestTimes", "frmMemory"};
    TopTen list = scores_.topTen(kind);
    if (const std::optional<int> place = list.placeOf(clicks)) {
        const QString name = askName(kind);
        if (ground_.gate.isClosing())
            return;
        list.enter(*place, clicks, name);
        step([&] { scores_.saveTopTen(kind, list); });
        ShowBestTimes(message, kind, owner);
        if (ground_.gate.isClosing())
            return;
    }
    step([&] { scores_.saveTopTen(kind, list); });
}

QString BestLists::askName(const MemoryKind &kind)
{
    return ground_.boxes.ShowIBox(
        u"Herzlichen Glückwunsch !\nDein Name wird in die Bestenliste aufgenommen !\n\n"
        u"Gib bitte deinen Namen ein :"_s,
        kind.tile->box, u"Sieger"_s,
        u"Bestenliste Paarlon (%1)"_s.arg(QString::fromUtf16(kind.tile->plural)));
}

void BestLists::ShowBestTimes(const QString &message, const MemoryKind &kind, QWidget *owner)
{
    if (const Gate::Passage open = ground_.gate.openBox())
        frmBestTimes(message, kind, scores_.topTen(kind), owner).exec();
}

void BestLists::ResetMemoryMaster(const MemoryKind *kind)
{
    constexpr int okAndCancel = 3;
    constexpr int refused = 1;
    Procedure step{ground_.log, "ResetMemoryMaster", "frmMemory"};
    if (ground_.boxes.ShowMBox(u"Möchtest du Paarlon\nzurücksetzen ?"_s, true, okAndCancel, u"Bestätigen"_s,
                               BoxStyle::Confirm) != refused)
        step([&] { scores_.reset(kind); });
}
