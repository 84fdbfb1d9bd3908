// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_house.h"

namespace {

const QString press = QAccessibleActionInterface::pressAction();
const QString menu = QAccessibleActionInterface::showMenuAction();

/// The house in front of a child that hears: "ver" above on the left, "fahr" in the middle, "halt" below.
struct ReadHouse : TestHouse
{
    const MainControls &c = controls;

    ReadHouse()
    {
        form.show();
        form.activateWindow();
        lay(prefixKind, 40, 40, u"ver"_s);
        lay(wortelKind, 300, 200, u"fahr"_s);
        lay(wortelKind, 500, 380, u"halt"_s);
        r.canvas.repaint();
        c.picCanvas->setFocus();
        settle();
    }
    QAccessibleInterface *board() const { return QAccessible::queryAccessibleInterface(c.picCanvas); }
    /// The tiles as they are read, in order.
    QList<QAccessibleInterface *> tiles() const
    {
        QList<QAccessibleInterface *> found;
        for (int i = 0; i < board()->childCount(); ++i)
            if (board()->child(i)->role() == QAccessible::ListItem &&
                board()->indexOfChild(board()->child(i)) == i)
                found << board()->child(i);
        return found;
    }
    QString read() const
    {
        QStringList names;
        for (const QAccessibleInterface *tile : tiles())
            names << tile->text(QAccessible::Name) + u" "_s + tile->text(QAccessible::Description);
        return names.join(u'|');
    }
    QString afterAction(int tile, const QString &action)
    {
        tiles().at(tile)->actionInterface()->doAction(action);
        settle();
        return c.Dropper1->Caption() + (menu.shown > 0 ? u"menu"_s : QString());
    }
    void clear()
    {
        r.store.replaceAll({});
        r.canvas.repaint();
    }
    bool isHeld() { return press({310, 210}), tiles().at(1)->state().selected; }
    QString inAWork()
    {
        const Work work(t.ground, {WorkPlan::Cancel, 1});
        return afterAction(1, ::press);
    }
};

struct Row
{
    const char *name;
    QString (*act)(ReadHouse &);
    QString expected;
};

// clang-format off
#define ACT(...) [](ReadHouse &h) -> QString { return __VA_ARGS__; }
const Row rows[] = {
    {"all", ACT(h.read()), u"ver, Präfix oben links|fahr, Wortel in der Mitte|halt, Wortel unten rechts"_s},
    {"filter", ACT(h.r.optTypes.select(1), h.read()), u"ver, Präfix oben links"_s},
    {"empty filter", ACT(h.r.optTypes.select(2), h.read()), {}},
    {"empty board", ACT(h.clear(), h.read()), {}},
    {"changed", ACT(h.r.canvas.EditObject({300, 200}, u"bahn"_s, wortelKind.back), h.read().section(u'|', 1)), u"halt, Wortel unten rechts|bahn, Wortel in der Mitte"_s},
    {"no text", ACT(h.lay(suffixKind, 9, 9, u" \n"_s), h.read().section(u'|', 3)), u"leer, Suffix oben links"_s},
    {"hit", ACT(h.board()->childAt(h.tiles().at(1)->rect().center().x(), h.tiles().at(1)->rect().center().y())->text(QAccessible::Name)), u"fahr, Wortel"_s},

    {"press", ACT(h.afterAction(1, press)), u"fahr"_s},
    {"press behind a prefix", ACT(h.afterAction(0, press), h.afterAction(1, press)), u"verfahr"_s},
    {"menu", ACT(h.afterAction(1, menu)), u"menu"_s},
    {"focus", ACT(h.afterAction(1, QAccessibleActionInterface::setFocusAction()), QString::number(h.tiles().at(1)->state().focused)), u"1"_s},
    {"press in a work", ACT(h.inAWork()), {}},
    {"held", ACT(QString::number(h.isHeld())), u"1"_s},
};
#undef ACT
// clang-format on

} // namespace

class BoardReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void isReadAndPressed_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < static_cast<int>(std::size(rows)); ++i)
            QTest::newRow(rows[i].name) << i;
    }
    void isReadAndPressed()
    {
        QFETCH(int, row);
        ReadHouse house;
        QCOMPARE(rows[row].act(house), rows[row].expected);
    }

    /// A reader that holds on to what it was given, and asks whenever events run.
    void aRebuildLeavesAValidTree()
    {
        ReadHouse house;
        QList<QAccessible::Id> ids;
        for (QAccessibleInterface *tile : house.tiles())
            ids << QAccessible::uniqueId(tile);
        int asked = 0;
        house.t.pump.onYield = [&] {
            asked += house.read().contains(u", "_s) ? 1 : 0;
            for (const QAccessible::Id id : ids)
                if (QAccessibleInterface *tile = QAccessible::accessibleInterface(id))
                    QVERIFY(tile->text(QAccessible::Name).isEmpty() != tile->isValid());
        };
        house.c.Text1->setText(u"3"_s);
        house.tool(house.c.Check2);
        house.t.pump.onYield = nullptr;
        QVERIFY(asked > 0);
        QCOMPARE(house.tiles().size(), house.r.store.count());
        house.clear();
        for (const QAccessible::Id id : ids)
            QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
    }
};
WORTEL_TEST(BoardReaderTest)
#include "tst_board_reader.moc"
