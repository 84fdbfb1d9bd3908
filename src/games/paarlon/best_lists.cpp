// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/best_lists.h"

#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"

using namespace Qt::StringLiterals;

BestLists::BestLists(Ground &ground)
    : ground_(ground)
    , scores_(ground.store)
{}

void BestLists::GetBestTimes(const MemoryKind &kind, int clicks, const QString &message)
{
    Procedure step{ground_.log, "GetBestTimes", "frmMemory"};
    TopTen list = scores_.topTen(kind);
    if (const std::optional<int> place = list.placeOf(clicks)) {
        QString name;
        step([&] {
            name = ground_.boxes.ShowEnterName(
                u"Bestenliste Paarlon (%1)"_s.arg(QString::fromUtf16(kind.tile->plural)));
        });
        if (ground_.gate.isClosing())
            return;
        list.enter(*place, clicks, name);
        const TopTen::Record entry = list.records().at(*place);
        step([&] { scores_.saveTopTen(kind, list); });
        list = TopTen::fromText(list.text()); // where it stands among its equals
        step([&] { ShowBestTimes(message, kind, static_cast<int>(list.records().indexOf(entry)) + 1); });
        if (ground_.gate.isClosing())
            return;
    }
    step([&] { scores_.saveTopTen(kind, list); });
}

void BestLists::ShowBestTimes(const QString &message, const MemoryKind &kind, int place)
{
    HighScoreSheet sheet{u"Bestenliste - Paarlon (%1)"_s.arg(QString::fromUtf16(kind.label)),
                         u"Paarlon"_s,
                         message,
                         {},
                         place};
    const TopTen list = scores_.topTen(kind);
    for (const TopTen::Record &record : list.records())
        sheet.rows.append({record.name, QString::number(record.score)});
    ground_.boxes.ShowBestTimes(sheet);
}

void BestLists::ResetMemoryMaster(const MemoryKind *kind)
{
    Procedure step{ground_.log, "ResetMemoryMaster", "frmMemory"};
    if (ground_.boxes.agrees(u"Möchtest du Paarlon\nzurücksetzen ?"_s, u"Bestätigen"_s))
        step([&] { scores_.reset(kind); });
}
