// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/word_store.h"
#include "support/test_class.h"
#include "widgets/store_list.h"

#include <QScrollBar>

namespace {

QStringList words(int count)
{
    QStringList result;
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result << u"Wort %1"_s.arg(i);
    return result;
}

QString shown(const StoreList &list, int row) { return list.model()->index(row, 0).data().toString(); }

QPoint middleOf(const StoreList &list, int row)
{
    return list.visualRect(list.model()->index(row, 0)).center();
}

} // namespace

class StoreListTest : public QObject
{
    Q_OBJECT

private slots:
    void showsAFullStore()
    {
        WordStore store;
        store.addAll(words(32000));
        StoreList list;
        list.resize(150, 300);
        list.show(&store);
        list.show();
        list.grab();
        QCOMPARE(list.model()->rowCount(), 32000);
        list.setListIndex(31999);
        QCOMPARE(list.ListIndex(), 31999);
        QVERIFY(list.viewport()->rect().contains(middleOf(list, 31999)));
    }

    void followsItsStore()
    {
        WordStore store;
        store.addAll(words(100));
        StoreList list;
        list.show(&store);
        list.show();
        list.setListIndex(50);
        store.replace(50, u"neu"_s);
        QCOMPARE(list.ListIndex(), 50);
        QCOMPARE(shown(list, 50), u"neu"_s);
        store.add(u"letztes"_s);
        QTRY_COMPARE(list.model()->rowCount(), 101);
        QCOMPARE(list.ListIndex(), 50);
        store.clear();
        QCOMPARE(list.ListIndex(), -1);
        QCOMPARE(list.model()->rowCount(), 0);
        list.grab();
    }

    void selectionGoesWithItsWord_data()
    {
        columns<QStringList, int, int>("after", "row", "expected"); // before: a b b c
        QTest::newRow("inserted above") << QStringList{u"neu"_s, u"a"_s, u"b"_s, u"b"_s, u"c"_s} << 3 << 4;
        QTest::newRow("removed above") << QStringList{u"b"_s, u"b"_s, u"c"_s} << 3 << 2;
        QTest::newRow("many inserted above") << words(100) + QStringList{u"a"_s, u"b"_s} << 0 << 100;
        QTest::newRow("the nearest of two") << QStringList{u"b"_s, u"a"_s, u"a"_s, u"b"_s, u"c"_s} << 2 << 3;
        QTest::newRow("all gone") << QStringList{} << 3 << -1;
    }
    void selectionGoesWithItsWord()
    {
        QFETCH(QStringList, after);
        QFETCH(int, row);
        WordStore store;
        store.addAll({u"a"_s, u"b"_s, u"b"_s, u"c"_s});
        StoreList list;
        list.show(&store);
        list.setListIndex(row);
        store.clear();
        store.addAll(after);
        QTEST(list.ListIndex(), "expected");
    }

    void manyRowsStaySelected()
    {
        WordStore store;
        store.addAll(words(6));
        StoreList list;
        list.setSelectionMode(QAbstractItemView::ExtendedSelection);
        list.show(&store);
        list.selectRows({4, 1, 2, 9});
        QCOMPARE(list.selectedRows(), (QList<int>{1, 2, 4}));
        QCOMPARE(list.selectedWords(), (QStringList{store.at(1), store.at(2), store.at(4)}));
        store.add(u"neu"_s);
        QCOMPARE(list.selectedRows(), (QList<int>{1, 2, 4}));
        store.clear();
        store.addAll(words(3));
        QCOMPARE(list.selectedRows(), (QList<int>{1, 2}));
        list.setListIndex(0);
        QCOMPARE(list.selectedRows(), QList<int>{0});
    }

    void clicks()
    {
        WordStore store;
        store.addAll(words(3));
        StoreList list;
        list.resize(120, 200);
        list.show(&store);
        list.show();
        QSignalSpy left(&list, &StoreList::rowClicked);
        QSignalSpy right(&list, &StoreList::rightPressed);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(list, 1));
        QCOMPARE(left.count(), 1);
        QCOMPARE(left.first().first().toInt(), 1);
        QCOMPARE(list.ListIndex(), 1);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(60, 180));
        QCOMPARE(left.count(), 1);
        QTest::mouseClick(list.viewport(), Qt::RightButton, {}, middleOf(list, 2));
        QCOMPARE(right.count(), 1);
        QCOMPARE(left.count(), 1);
        QCOMPARE(list.ListIndex(), 1);
    }
};

WORTEL_TEST(StoreListTest)
#include "tst_store_list.moc"
