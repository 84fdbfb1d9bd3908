// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/morpheme_lists.h"
#include "support/test_board.h"
#include "support/test_class.h"
#include "widgets/store_list.h"

class MorphemeListsTest : public QObject
{
    Q_OBJECT

private slots:
    void openListsStandSideBySide_data()
    {
        // opened: by right presses on these filter buttons
        columns<QSize, QList<int>, QRect, QRect, QRect>("window", "opened", "prefix", "wortel", "suffix");
        const QSize design(632, 573);
        const QRect none;
        QTest::newRow("all, design size") << design << QList{3} << QRect(0, 185, 66, 300)
                                          << QRect(66, 185, 84, 300) << QRect(150, 185, 66, 300);
        QTest::newRow("all, wide window") << QSize(1366, 749) << QList{3} << QRect(0, 361, 66, 300)
                                          << QRect(67, 361, 84, 300) << QRect(158, 361, 66, 300);
        QTest::newRow("one alone stands at its button")
            << design << QList{0} << none << QRect(41, 185, 84, 300) << none;
        QTest::newRow("one after the other")
            << design << QList{0, 1} << QRect(0, 185, 66, 300) << QRect(66, 185, 84, 300) << none;
        QTest::newRow("low window") << QSize(632, 288) << QList{2} << none << none << QRect(108, 0, 66, 200);
    }
    void openListsStandSideBySide()
    {
        QFETCH(QSize, window);
        QFETCH(QList<int>, opened);
        TestBoard b(1, window);
        MorphemeLists lists(b.t.ground, b.controls);
        for (const int index : opened)
            lists.OptType_MouseDown(index, Qt::RightButton);
        const auto place = [](const StoreList *list) {
            return list->isHidden() ? QRect() : list->geometry();
        };
        QTEST(place(b.controls.PrefixList), "prefix");
        QTEST(place(b.controls.WortelList), "wortel");
        QTEST(place(b.controls.SuffixList), "suffix");
    }
};

WORTEL_TEST(MorphemeListsTest)
#include "tst_morpheme_lists.moc"
