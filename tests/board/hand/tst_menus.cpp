// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/menu_model.h"
#include "board/hand/menu_table.h"
#include "board/hand/popup_menu.h"
#include "support/columns.h"
#include "support/registry.h"

#include <QDir>
#include <QMenu>
#include <QScreen>
#include <QtTest>

#include <span>

using namespace Qt::StringLiterals;
using Kind = MenuItem::Kind;

namespace {

const QString noButton = u"Wörterbuch"_s;

Modes inGame()
{
    Modes modes;
    modes.GameActive = true;
    return modes;
}

Modes retyping(bool Modes::*source)
{
    Modes modes;
    modes.RetypeActive = true;
    modes.*source = true;
    return modes;
}

/// All items below `items`, in the order of the menu.
void flatten(const std::vector<MenuItem> &items, std::vector<const MenuItem *> &all)
{
    for (const MenuItem &item : items) {
        all.push_back(&item);
        flatten(item.children, all);
    }
}

const MenuItem &itemNamed(const MenuTree &tree, const QString &caption)
{
    for (const MenuItem &item : tree)
        if (item.caption == caption && item.kind != Kind::Heading)
            return item;
    qFatal("no item %s", qPrintable(caption));
}

const MenuItem &itemWithId(const MenuTree &tree, int id)
{
    std::vector<const MenuItem *> all;
    flatten(tree, all);
    for (const MenuItem *item : all)
        if (item->id == id)
            return *item;
    qFatal("no item %d", id);
}

/// "1600+ 1601-": the commands with "+" for enabled, "-" for disabled and "*" for checked.
QString states(const std::vector<MenuItem> &items)
{
    QStringList text;
    for (const MenuItem &item : items)
        if (item.kind == Kind::Command)
            text << QString::number(item.id) + (item.enabled ? u'+' : u'-') +
                        (item.checked ? u"*"_s : QString());
    return text.join(u' ');
}

} // namespace

Q_DECLARE_METATYPE(Modes)

class MenusTest : public QObject
{
    Q_OBJECT

private slots:
    void everyRow_data()
    {
        columns<int, int, QString>("name", "commands", "firstCaption");
        QTest::newRow("main") << 0 << 94 << u"Hauptmenü"_s;
        QTest::newRow("prefix") << 1 << 12 << u"Präfix"_s;
        QTest::newRow("wortel") << 2 << 12 << u"Wortel"_s;
        QTest::newRow("suffix") << 3 << 11 << u"Suffix"_s;
    }
    void everyRow()
    {
        QFETCH(int, name);
        QFETCH(int, commands);
        QFETCH(QString, firstCaption);
        const MenuTree tree = buildMenu(static_cast<MenuName>(name), {});
        QCOMPARE(tree.front().caption, firstCaption);
        QCOMPARE(tree.front().kind, Kind::Heading);

        std::vector<const MenuItem *> all;
        flatten(tree, all);
        QSet<int> ids;
        const QStringList pictures = QDir(WORTEL_SOURCE_DIR u"/resources/icons/menu"_s).entryList();
        for (std::size_t i = 0; i < all.size(); ++i) {
            const MenuItem &item = *all[i];
            QCOMPARE(item.index, static_cast<int>(i) + 1);
            QCOMPARE(item.children.empty(), item.kind != Kind::Submenu);
            QVERIFY2(item.caption.isEmpty() == (item.kind == Kind::Separator), qPrintable(item.caption));
            QVERIFY(!item.hint.contains(u'%'));
            if (item.icon >= 0) {
                const QString start = u"%1-"_s.arg(item.icon, 2, 10, QLatin1Char('0'));
                QVERIFY2(!pictures.filter(QRegularExpression(u'^' + start)).isEmpty(), qPrintable(start));
            }
            if (item.kind != Kind::Command)
                continue;
            if (item.id == 0)
                QCOMPARE(item.caption, u"Menü schließen"_s);
            QVERIFY2(!ids.contains(item.id), qPrintable(item.caption));
            ids.insert(item.id);
        }
        QCOMPARE(ids.size(), commands);
    }

    void dictionaryHintNamesItsButton()
    {
        const MenuTree tree = buildMenu(MenuName::MainMenu, {{}, true, u"Suchen"_s});
        QCOMPARE(itemWithId(tree, 401).hint, u"Linksklick auf Suchen"_s);
        QCOMPARE(itemWithId(tree, 402).hint, u"Rechtsklick auf Suchen"_s);
    }

    void modeTurnsBranchesOff_data()
    {
        columns<bool, bool, bool, QStringList>("game", "retype", "undo", "off");
        const QStringList both{u"Wörterbuch"_s, u"Wörterliste"_s, u"Optionen"_s};
        QTest::newRow("nothing runs") << false << false << true << QStringList();
        QTest::newRow("game") << true << false << true << both + QStringList{u"Abschreiben"_s};
        QTest::newRow("retype") << false << true << true << both + QStringList{u"S p i e l e"_s};
        QTest::newRow("no undo") << false << false << false << QStringList{u"Aktion"_s};
    }
    void modeTurnsBranchesOff()
    {
        QFETCH(bool, game);
        QFETCH(bool, retype);
        QFETCH(bool, undo);
        QFETCH(QStringList, off);
        MenuFacts facts;
        facts.modes.GameActive = game;
        facts.modes.RetypeActive = retype;
        facts.modes.CanUndo = true;
        facts.useUndo = undo;
        const MenuTree tree = buildMenu(MenuName::MainMenu, facts);
        for (const MenuItem &item : tree) {
            QVERIFY2(item.enabled != off.contains(item.caption), qPrintable(item.caption));
            std::vector<const MenuItem *> below;
            flatten(item.children, below);
            for (const MenuItem *child : below)
                QVERIFY2(item.enabled || !child->enabled, qPrintable(child->caption));
        }
        QCOMPARE(itemWithId(tree, 1901).enabled, !game && !retype);
        QCOMPARE(itemWithId(tree, 1904).enabled, !game && !retype);
        QVERIFY(itemWithId(tree, 1903).enabled);
    }

    void openingSubmenu_data()
    {
        columns<QString, Modes, QString>("caption", "modes", "expected");

        const QString retype = u"Abschreiben"_s;
        Modes dictionary = retyping(&Modes::RetypeRandomWords);
        dictionary.RetypeChosenWords = true;
        QTest::newRow("retype off") << retype << Modes{} << u"1600+ 1601+ 1607+ 1608+"_s;
        QTest::newRow("word list") << retype << retyping(&Modes::RetypeUserWords)
                                   << u"1600+* 1601- 1607- 1608-"_s;
        QTest::newRow("dictionary") << retype << dictionary << u"1600- 1601+* 1607- 1608-"_s;
        QTest::newRow("nonsense") << retype << retyping(&Modes::RetypePseudoWords)
                                  << u"1600- 1601- 1607+* 1608-"_s;
        QTest::newRow("chosen") << retype << retyping(&Modes::RetypeChosenWords)
                                << u"1600- 1601- 1607- 1608+*"_s;
        QTest::newRow("retype in a game") << retype << inGame() << u"1600- 1601- 1607- 1608-"_s;

        Modes undo;
        undo.CanUndo = true;
        Modes redo;
        redo.CanRedo = true;
        QTest::newRow("no step") << u"Aktion"_s << Modes{} << u"2801- 2802-"_s;
        QTest::newRow("undo") << u"Aktion"_s << undo << u"2801+ 2802-"_s;
        QTest::newRow("redo") << u"Aktion"_s << redo << u"2801- 2802+"_s;

        Modes vowels = inGame();
        vowels.GameShortVowels = true;
        const QString games = u"S p i e l e"_s;
        QTest::newRow("no game") << games << Modes{} << u"701+ 1701+"_s;
        QTest::newRow("game") << games << inGame() << u"701+* 1701-"_s;
        QTest::newRow("vowel game") << games << vowels << u"701+ 1701-"_s;
    }
    void openingSubmenu()
    {
        QFETCH(QString, caption);
        QFETCH(Modes, modes);
        QFETCH(QString, expected);
        Modes present = modes;
        // The menus are built before the mode begins, unless the mode turns the whole branch off.
        if (!(caption == u"Abschreiben"_s && modes.GameActive))
            present = Modes{};
        MenuModel model([&] { return MenuFacts{present, true, noButton}; });
        model.CreateMenus();
        present = modes;
        const int index = itemNamed(model.Restore(MenuName::MainMenu), caption).index;
        QVERIFY(model.CP_InitPopupMenu(index));
        const MenuItem &item = itemNamed(model.Restore(MenuName::MainMenu), caption);
        QCOMPARE(states(item.children), expected);
        for (const MenuItem &child : item.children) {
            QCOMPARE(model.ItemKey(MenuName::MainMenu, child.index), child.id);
            QVERIFY(child.index > index);
        }
        // A second opening must find the branch again.
        QVERIFY(model.CP_InitPopupMenu(index));
        QCOMPARE(states(itemNamed(model.Restore(MenuName::MainMenu), caption).children), expected);
    }

    void otherSubmenusStay()
    {
        MenuModel model([] { return MenuFacts{inGame(), true, noButton}; });
        model.CreateMenus();
        const MenuTree &tree = model.Restore(MenuName::MainMenu);
        QVERIFY(!model.CP_InitPopupMenu(itemNamed(tree, u"Hilfe"_s).index));
        QVERIFY(!model.CP_InitPopupMenu(9999));
        QCOMPARE(model.ItemKey(MenuName::MainMenu, 9999), 0);
        // Of the games in a game only "Paarlon" may still be chosen.
        const MenuTree &games = itemNamed(tree, u"S p i e l e"_s).children;
        QCOMPARE(states(itemNamed(games, u"Paarlon"_s).children), u"150+ 250+ 350+"_s);
        QCOMPARE(states(itemNamed(games, u"Tonarin"_s).children), u"1702- 1703-"_s);
    }

    void chosenWithKeysOrMouse()
    {
        MenuModel model([] { return MenuFacts{}; });
        model.CreateMenus();
        QWidget owner;
        owner.show();
        PopupMenu popup(model, &owner);
        for (const bool mouse : {false, true}) {
            QTimer::singleShot(50, &owner, [mouse] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                QVERIFY(menu != nullptr);
                QAction *edit = nullptr;
                for (QAction *action : menu->actions())
                    if (action->text() == u"Bearbeiten"_s)
                        edit = action;
                if (mouse) {
                    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(edit).center());
                    return;
                }
                while (menu->activeAction() != edit)
                    QTest::keyClick(menu, Qt::Key_Down);
                QTest::keyClick(menu, Qt::Key_Return);
            });
            const int index = popup.ShowPopupMenu(MenuName::SuffixMenu, QPoint(10, 10));
            QCOMPARE(model.ItemKey(MenuName::SuffixMenu, index), 104);
        }
        QTimer::singleShot(50, &owner,
                           [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
        QCOMPARE(popup.ShowPopupMenu(MenuName::MainMenu, QPoint(10, 10)), 0);
    }

    void staysInsideTheScreen()
    {
        MenuModel model([] { return MenuFacts{}; });
        model.CreateMenus();
        PopupMenu popup(model, nullptr);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QRect place;
        QTimer::singleShot(50, this, [&] {
            place = QApplication::activePopupWidget()->geometry();
            QApplication::activePopupWidget()->close();
        });
        popup.ShowPopupMenu(MenuName::MainMenu, screen.bottomRight());
        QVERIFY2(screen.contains(place), "the menu leaves the screen");
    }
};

WORTEL_TEST(MenusTest)
#include "tst_menus.moc"
