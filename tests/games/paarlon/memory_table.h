// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/frm_memory.h"
#include "games/paarlon/memory_card.h"
#include "support/test_board.h"

#include <QAbstractButton>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The house with lists that are long enough, and a player at the card game's window. Stems are twins in
/// part.
struct MemoryTable : TestBoard
{
    explicit MemoryTable(quint64 seed = 1)
        : TestBoard(seed)
    {
        setList(u"text\\Hauptbausteine.Txt"_s, u"stamm#2"_s, 24);
        setList(u"affix\\prefix.afx"_s, u"vor#x"_s, 24);
        setList(u"affix\\suffix.afx"_s, u"nach#x"_s, 24);
        form.show();
        settle();
        t.sound.resources.clear();
    }

    void setList(const QString &file, const QString &pattern, int lines)
    {
        QString text;
        for (int i = 0; i < lines; ++i)
            text += QString(pattern).replace(u'#', QChar(u'a' + i % 24)) + u"\r\n"_s;
        t.writeFile(file, text);
    }
    QString stored(const QString &key) const { return t.store.GetSetting(u"MemoryGame"_s, key, u"-"_s); }

    frmMemory *window() const { return r.paarlon.window(); }
    const MemoryRules &rules() const { return window()->rules(); }
    MemoryCard *card(int index) const
    {
        return window()->controls().picMorphemeCard[static_cast<std::size_t>(index)];
    }
    /// Chooses the game in the menu.
    void open(int id)
    {
        run(command::From::MainMenu, id);
        settle();
    }
    /// So many milliseconds of the intro.
    void intro(int milliseconds)
    {
        for (int passed = 0; passed < milliseconds && window() != nullptr; passed += 50) {
            t.clock.moment = t.clock.moment.addMSecs(50);
            window()->moveBall();
        }
        settle();
    }
    void deal(int id)
    {
        open(id);
        intro(4000);
        t.sound.resources.clear();
    }

    void click(int index) { QTest::mouseClick(card(index), Qt::LeftButton); }
    /// Goes with the arrows from where the keyboard is, and turns.
    void turnByKeys(int index)
    {
        int at = 0;
        while (at < 35 && !card(at)->hasFocus())
            ++at;
        for (; at / 6 != index / 6; at += at / 6 < index / 6 ? 6 : -6)
            QTest::keyClick(window()->focusWidget(), at / 6 < index / 6 ? Qt::Key_Down : Qt::Key_Up);
        for (; at != index; at += at < index ? 1 : -1)
            QTest::keyClick(window()->focusWidget(), at < index ? Qt::Key_Right : Qt::Key_Left);
        QTest::keyClick(window()->focusWidget(), index % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
    }
    /// The other card with the same morpheme, or one with another.
    int twinOf(int index, bool same = true) const
    {
        for (int other = 0; other < 36; ++other)
            if (other != index && (rules().CardMorpheme(other) == rules().CardMorpheme(index)) == same)
                return other;
        return -1;
    }
    /// Solves all but `left` pairs, after so many turns without one.
    void solve(int misses, int left, const std::function<void(int)> &turn)
    {
        for (int miss = 0; miss < misses; ++miss) {
            turn(miss);
            turn(twinOf(miss, false));
            window()->tmrFlipMorpheme_Timer();
        }
        for (int index = 0; index < 36 && rules().PairsFound() < 18 - left; ++index) {
            if (rules().isSolved(index))
                continue;
            turn(index);
            turn(twinOf(index));
        }
    }
    void solve(int misses = 0, int left = 0)
    {
        solve(misses, left, [this](int index) { click(index); });
    }
};
