// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/minute_timer.h"
#include "support/reports.h"
#include "support/test_house.h"

/// The house with a game of few minutes, and a hand on its clock.
struct GameDesk : TestHouse
{
    GameDesk()
    {
        t.options.setText(Setting::GameTimeOut, QStringLiteral("3"));
        t.options.setText(Setting::GamePrepareTimeOut, QStringLiteral("2"));
        form.show();
        settle();
    }

    void start(int level)
    {
        tool(controls.Option2[static_cast<std::size_t>(level - 1)]);
        tool(controls.Check3);
    }
    void minutes(int count)
    {
        t.clock.moment = t.clock.moment.addSecs(60 * count);
        for (MinuteTimer *timer : r.game.findChildren<MinuteTimer *>())
            timer->look();
        settle();
    }
    void type(const QString &word)
    {
        controls.Dropper1->setCaption(word);
        tool(controls.Command2);
        settle();
        takeReports(*this); // the check rests under one
        settle();
    }
    QString caption() const { return controls.GameProgress->Caption(); }
    QString sign() const { return form.findChild<QWidget *>(QStringLiteral("GameSign"))->accessibleName(); }
};
