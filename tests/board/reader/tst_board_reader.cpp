// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/heard.h"
#include "support/registry.h"
#include "support/test_house.h"

#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// The house in front of a child that sees with a reader: "ver" above on the left, "fahr" and "halt" below.
struct ReadHouse : TestHouse
{
    const MainControls &c = controls;
    Heard heard;

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
    QAccessibleInterface *tile(const QString &text) const
    {
        for (int i = 0; i < board()->childCount(); ++i)
            if (board()->child(i)->text(QAccessible::Name).startsWith(text + u','))
                return board()->child(i);
        return nullptr;
    }
    /// The tiles as they are read, in order.
    QStringList read() const
    {
        QStringList names;
        for (int i = 0; i < board()->childCount(); ++i)
            if (QAccessibleInterface *child = board()->child(i); child->role() == QAccessible::ListItem)
                names << child->text(QAccessible::Name);
        return names;
    }
    void act(const QString &text, const QString &action)
    {
        tile(text)->actionInterface()->doAction(action);
        settle();
    }
    QStringList heardOf(const char *kind, const std::function<void(ReadHouse &)> &act)
    {
        Heard::take({});
        act(*this);
        settle();
        return Heard::take(QLatin1String(kind));
    }
};

using Act = std::function<void(ReadHouse &)>;

} // namespace
Q_DECLARE_METATYPE(Act)

class BoardReaderTest : public QObject
{
    Q_OBJECT

private slots:
    void tilesAreRead_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *name, Act act, const QString &read) {
            QTest::newRow(name) << std::move(act) << read;
        };
        row(
            "all", [](ReadHouse &) {}, u"ver, Präfix|fahr, Wortel|halt, Wortel"_s);
        row(
            "filter", [](ReadHouse &h) { h.r.optTypes.select(0); }, u"fahr, Wortel|halt, Wortel"_s);
        row(
            "empty filter", [](ReadHouse &h) { h.r.optTypes.select(2); }, QString());
        row(
            "empty board", [](ReadHouse &h) { h.r.store.replaceAll({}); }, QString());
        row(
            "changed",
            [](ReadHouse &h) {
                h.r.canvas.EditObject({300, 200}, u"bahn"_s, wortelKind.back);
            },
            u"ver, Präfix|halt, Wortel|bahn, Wortel"_s);
        row(
            "no text", [](ReadHouse &h) { h.lay(suffixKind, 9, 9, u" \n"_s); },
            u"ver, Präfix|fahr, Wortel|halt, Wortel|leer, Suffix"_s);
    }
    void tilesAreRead()
    {
        QFETCH(Act, act);
        ReadHouse house;
        QCOMPARE(house.read().size(), 3);
        act(house);
        ReadHouse::settle();
        QTEST(house.read().join(u'|'), "read");
        for (int i = 0; i < house.board()->childCount(); ++i) {
            QAccessibleInterface *child = house.board()->child(i);
            QVERIFY(child->isValid() && child->parent() == house.board());
            QCOMPARE(house.board()->indexOfChild(child), i);
        }
    }

    void aTileTellsItsPlace()
    {
        ReadHouse house;
        QAccessibleInterface *tile = house.tile(u"ver"_s);
        QCOMPARE(tile->text(QAccessible::Description), u"oben links"_s);
        QCOMPARE(house.tile(u"halt"_s)->text(QAccessible::Description), u"unten rechts"_s);
        QCOMPARE(tile->rect().topLeft(), house.c.picCanvas->mapToGlobal(QPoint(40, 40)));
        QCOMPARE(house.board()->childAt(tile->rect().center().x(), tile->rect().center().y()), tile);
    }

    void aTileActs_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<Act>("before");
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("menus");
        const Act nothing = [](ReadHouse &) {};
        const QString press = QAccessibleActionInterface::pressAction();
        const QString menu = QAccessibleActionInterface::showMenuAction();
        QTest::newRow("press") << press << nothing << u"fahr"_s << 0;
        QTest::newRow("press behind a prefix")
            << press << Act([](ReadHouse &h) { h.act(u"ver"_s, QAccessibleActionInterface::pressAction()); })
            << u"verfahr"_s << 0;
        QTest::newRow("menu") << menu << nothing << QString() << 1;
        QTest::newRow("focus") << QAccessibleActionInterface::setFocusAction() << nothing << QString() << 0;
    }
    void aTileActs()
    {
        QFETCH(QString, action);
        QFETCH(Act, before);
        ReadHouse house;
        before(house);
        house.act(u"fahr"_s, action);
        QTEST(house.c.Dropper1->Caption(), "word");
        QTEST(house.menu.shown, "menus");
        QVERIFY(house.menu.shown == 0 || house.menu.lastName == MenuName::WortelMenu);
        QVERIFY(house.tile(u"fahr"_s)->state().selected);
        QCOMPARE(house.trouble(), QString());
    }

    /// A press passes the gate: what runs is not disturbed.
    void aTileRestsInAWork()
    {
        ReadHouse house;
        const Work work(house.t.ground, {WorkPlan::Cancel, 1});
        house.act(u"fahr"_s, QAccessibleActionInterface::pressAction());
        QCOMPARE(house.c.Dropper1->Caption(), QString());
    }

    void isHeard_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("heard");
        const auto row = [](const char *name, const char *kind, Act act, const QString &heard) {
            QTest::newRow(name) << QByteArray(kind) << std::move(act) << heard;
        };
        const Act pick = [](ReadHouse &h) { h.press({310, 210}); };
        const Act drop = [](ReadHouse &h) {
            h.press({310, 210});
            h.drag({60, 300});
            h.release({60, 300});
        };
        row("picked up", "alert", pick, u"Aufgenommen: fahr, Wortel"_s);
        row("dropped", "alert", drop,
            u"Aufgenommen: fahr, Wortel|Abgelegt: fahr, Wortel, links in der Mitte"_s);
        row("held", "state", drop, u"fahr, Wortel|fahr, Wortel"_s);
        row(
            "gone in the hand", "alert",
            [](ReadHouse &h) {
                h.press({310, 210});
                h.r.store.replaceAll({});
                h.r.canvas.repaint();
            },
            u"Aufgenommen: fahr, Wortel"_s);
        row(
            "keys", "focus", [](ReadHouse &h) { h.r.focus.go(BoardFocus::Go::First); }, u"ver, Präfix"_s);
        row(
            "word", "alert", [](ReadHouse &h) { h.c.Dropper1->setCaption(u"Haus"_s); }, u"Wort: Haus"_s);
        row(
            "counter", "name", [](ReadHouse &h) { h.r.optTypes.set(0, 7); }, u"7 Wortel"_s);
        row(
            "bar", "value",
            [](ReadHouse &h) { h.c.GameProgress->setMaximum(2), h.c.GameProgress->setValue(1); },
            u"Bitte warten..."_s);
        row(
            "verdict", "alert",
            [](ReadHouse &h) {
                h.c.Dropper1->takeFocus();
                h.c.Dropper1->setCaption(u"Haus"_s);
                h.tool(h.c.Command2);
            },
            u"Richtig ! Das gesuchte Wort \"Haus\" ist richtig."_s);
        row(
            "tip", "alert", [](ReadHouse &h) { h.r.tips.mnuShowTip_Click(); }, u"Ein Tipp"_s);
        row(
            "removed", "gone", [](ReadHouse &h) { h.r.canvas.RecallFilter(0); }, QString());
    }
    void isHeard()
    {
        QFETCH(QByteArray, kind);
        QFETCH(Act, act);
        ReadHouse house;
        house.read();
        QTEST(house.heardOf(kind.constData(), act).join(u'|'), "heard");
    }

    /// A reader that holds on to what it was given, and asks whenever events run.
    void aRebuildLeavesAValidTree()
    {
        ReadHouse house;
        QList<QAccessible::Id> ids;
        for (int i = 0; i < house.board()->childCount(); ++i)
            ids << QAccessible::uniqueId(house.board()->child(i));
        int asked = 0;
        const auto ask = [&] {
            for (const QAccessible::Id id : ids)
                if (QAccessibleInterface *child = QAccessible::accessibleInterface(id);
                    child && child->isValid())
                    QVERIFY(!child->text(QAccessible::Name).isEmpty());
            asked += static_cast<int>(house.read().size());
        };
        house.t.pump.onYield = ask;
        house.t.pump.onServe = ask;
        house.c.Text1->setText(u"3"_s);
        house.tool(house.c.Check2);
        house.key(Qt::Key_A);
        house.t.pump.onYield = nullptr;
        house.t.pump.onServe = nullptr;
        QVERIFY(asked > 0);
        QCOMPARE(house.read().size(), house.r.store.count());
        house.r.store.replaceAll({});
        house.r.canvas.repaint();
        for (const QAccessible::Id id : ids.first(3))
            QVERIFY(QAccessible::accessibleInterface(id) == nullptr);
    }
};
WORTEL_TEST(BoardReaderTest)
#include "tst_board_reader.moc"
