// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/menu_model.h"
#include "board/hand/menu_table.h"
#include "board/hand/popup_menu.h"
#include "support/columns.h"
#include "support/registry.h"

#include <QFile>
#include <QMenu>
#include <QPointer>
#include <QPointingDevice>
#include <QScreen>
#include <QWindow>
#include <QtTest>

#include <functional>

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

QAction *actionNamed(const QMenu &menu, const QString &caption)
{
    for (QAction *action : menu.actions())
        if (action->text() == caption)
            return action;
    qFatal("no entry %s", qPrintable(caption));
}

void closeMenus()
{
    while (QWidget *open = QApplication::activePopupWidget())
        open->close();
}

/// The lightness of the darkest point, 0 to 255.
int darkest(const QImage &picture)
{
    int found = 255;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            found = std::min(found, picture.pixelColor(x, y).lightness());
    return found;
}

/// A hand that presses, moves and lets go, at points of `window`: with the mouse's right button or a finger.
std::function<void(QEvent::Type, QPoint)> handOn(QWindow *window, bool finger)
{
    static QPointingDevice *const screen = QTest::createTouchDevice();
    return [=](QEvent::Type type, const QPoint &point) {
        if (!finger) {
            type == QEvent::MouseMove          ? QTest::mouseMove(window, point)
            : type == QEvent::MouseButtonPress ? QTest::mousePress(window, Qt::RightButton, {}, point)
                                               : QTest::mouseRelease(window, Qt::RightButton, {}, point);
            return;
        }
        auto touch = QTest::touchEvent(window, screen);
        type == QEvent::MouseMove          ? touch.move(0, point, window)
        : type == QEvent::MouseButtonPress ? touch.press(0, point, window)
                                           : touch.release(0, point, window);
    };
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
        for (std::size_t i = 0; i < all.size(); ++i) {
            const MenuItem &item = *all[i];
            QCOMPARE(item.index, static_cast<int>(i) + 1);
            QCOMPARE(item.children.empty(), item.kind != Kind::Submenu);
            QVERIFY2(item.caption.isEmpty() == (item.kind == Kind::Separator), qPrintable(item.caption));
            QVERIFY(!item.hint.contains(u'%'));
            const QString picture = u":/icons/menu/%1.svg"_s.arg(item.icon, 2, 10, QLatin1Char('0'));
            QVERIFY2(item.icon < 0 || QFile::exists(picture), qPrintable(picture));
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
        columns<bool, bool, bool, QString>("game", "retype", "undo", "off");
        const QString lists = u"401 402 501 502 503 504 506"_s;
        const QString copying = u" 1600 1601 1602 1603 1604 1605 1606 1607 1608"_s;
        const QString session = u" 1901 1904"_s;
        const QString redoAndOptions = u" 2802 901"_s;
        QTest::newRow("nothing runs") << false << false << true << u"2802"_s;
        QTest::newRow("game") << true << false << true
                              << lists + copying + u" 1701 1702 1703"_s + session + redoAndOptions;
        QTest::newRow("retype") << false << true << true
                                << lists + u" 701 150 250 350 1701 1702 1703"_s + session + redoAndOptions;
        QTest::newRow("no undo") << false << false << false << u"2801 2802"_s;
    }
    void modeTurnsBranchesOff()
    {
        QFETCH(bool, game);
        QFETCH(bool, retype);
        QFETCH(bool, undo);
        MenuFacts facts;
        facts.modes.GameActive = game;
        facts.modes.RetypeActive = retype;
        facts.modes.CanUndo = true;
        facts.useUndo = undo;
        const MenuTree tree = buildMenu(MenuName::MainMenu, facts);
        std::vector<const MenuItem *> all;
        flatten(tree, all);
        QStringList off;
        for (const MenuItem *item : all)
            if (item->kind == Kind::Command && !item->enabled)
                off << QString::number(item->id);
        QTEST(off.join(u' '), "off");
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

    void disabledEntryIsDead_data()
    {
        columns<bool, QString, bool>("game", "caption", "enabled");
        QTest::newRow("submenu in a game") << true << u"Abschreiben"_s << false;
        QTest::newRow("submenu") << false << u"Abschreiben"_s << true;
        QTest::newRow("command in a game") << true << u"Optionen"_s << false;
        QTest::newRow("command") << false << u"Optionen"_s << true;
    }
    /// On the real menu: neither a click nor a key acts, and its letters are faint.
    void disabledEntryIsDead()
    {
        QFETCH(bool, game);
        QFETCH(QString, caption);
        QFETCH(bool, enabled);
        MenuModel model([game] { return MenuFacts{game ? inGame() : Modes{}, true, noButton}; });
        model.CreateMenus();
        PopupMenu popup(model, nullptr);
        QTimer::singleShot(50, this, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            const auto end = qScopeGuard(closeMenus);
            QAction *action = actionNamed(*menu, caption);
            const QRect row = menu->actionGeometry(action);
            const QRect letters(row.left() + 40, row.top(), menu->fontMetrics().horizontalAdvance(caption),
                                row.height());
            const int darkness = darkest(menu->grab(letters).toImage());
            QVERIFY2(enabled ? darkness < 80 : darkness > 130, qPrintable(QString::number(darkness)));
            QTest::mouseClick(menu, Qt::LeftButton, {}, row.center());
            if (menu->isVisible()) {
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
                QTest::keyClick(menu, Qt::Key_Right);
            }
            QCOMPARE(action->menu() != nullptr && action->menu()->isVisible(),
                     enabled && action->menu() != nullptr);
        });
        const int index = popup.ShowPopupMenu(MenuName::MainMenu, QPoint(10, 10));
        QCOMPARE(model.ItemKey(MenuName::MainMenu, index), enabled && caption == u"Optionen"_s ? 901 : 0);
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
                QAction *edit = actionNamed(*menu, u"Bearbeiten"_s);
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

    void isShiftedNoMoreThanNeeded_data()
    {
        columns<QPoint, bool, bool>("pointer", "right", "lower"); // the edges that the menu touches
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QTest::newRow("room enough") << QPoint(20, 5) << false << false;
        QTest::newRow("lower edge") << QPoint(20, screen.bottom() - 9) << false << true;
        QTest::newRow("a little too low") << QPoint(20, screen.bottom() - 400) << false << true;
        QTest::newRow("right edge") << QPoint(screen.right() - 9, 5) << true << false;
        QTest::newRow("corner") << screen.bottomRight() << true << true;
    }
    void isShiftedNoMoreThanNeeded()
    {
        QFETCH(QPoint, pointer);
        QFETCH(bool, right);
        QFETCH(bool, lower);
        MenuModel model([] { return MenuFacts{}; });
        model.CreateMenus();
        PopupMenu popup(model, nullptr);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QCursor::setPos(pointer);
        QRect place;
        QTimer::singleShot(50, this, [&] {
            place = QApplication::activePopupWidget()->geometry();
            QApplication::activePopupWidget()->close();
        });
        popup.ShowPopupMenu(MenuName::MainMenu, pointer);
        QCOMPARE(place.left() == pointer.x() ? -1 : place.right(), right ? screen.right() : -1);
        QCOMPARE(place.top() == pointer.y() ? -1 : place.bottom(), lower ? screen.bottom() : -1);
    }

    void openingPressChoosesNothing_data()
    {
        columns<bool, QPoint>("finger", "from"); // the point counts from the lower right corner of the board
        for (const bool finger : {false, true}) {
            const char *hand = finger ? "finger" : "mouse";
            QTest::addRow("%s, on the lower edge", hand) << finger << QPoint(-700, -10);
            QTest::addRow("%s, in the corner", hand) << finger << QPoint(-20, -10);
            QTest::addRow("%s, on the right edge", hand) << finger << QPoint(-20, -500);
        }
    }
    /// A board on the whole screen, so that the menu lies under the hand, which trembles before it lets go.
    void openingPressChoosesNothing()
    {
        QFETCH(bool, finger);
        QFETCH(QPoint, from);
        MenuModel model([] { return MenuFacts{}; });
        model.CreateMenus();
        QWidget board;
        board.setGeometry(board.screen()->geometry());
        board.show();
        QVERIFY(QTest::qWaitForWindowActive(&board));
        PopupMenu popup(model, &board);
        QWindow *window = board.windowHandle();
        const QPoint start = board.rect().bottomRight() + from;
        const auto hand = handOn(window, finger);

        bool quiet = false;
        QTimer::singleShot(50, this, [&] {
            QPointer<QMenu> menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            const auto end = qScopeGuard(closeMenus);
            for (int i = 1; i <= 24; ++i)
                hand(QEvent::MouseMove, start + QPoint(i % 5, -i));
            hand(QEvent::MouseButtonRelease, start + QPoint(4, -24));
            quiet = menu != nullptr && menu->isVisible() && menu->activeAction() == nullptr;
            if (!quiet)
                return;
            // The next press acts: down on one row, up on another.
            const auto place = [&](const QString &caption) {
                const QPoint middle = menu->actionGeometry(actionNamed(*menu, caption)).center();
                return window->mapFromGlobal(menu->mapToGlobal(middle));
            };
            const QPoint wanted = place(u"Optionen"_s);
            hand(QEvent::MouseButtonPress, place(u"Wortkontrolle"_s));
            for (int x = 0; x < 10; ++x)
                hand(QEvent::MouseMove, wanted + QPoint(x, 0));
            hand(QEvent::MouseButtonRelease, wanted + QPoint(9, 0));
        });
        QTimer::singleShot(0, this, [&] { hand(QEvent::MouseButtonPress, start); });
        QCoreApplication::processEvents(); // the press is on its way before the menu opens
        const int index = popup.ShowPopupMenu(MenuName::MainMenu, board.mapToGlobal(start));
        QVERIFY2(quiet, "the press that opened the menu did something");
        QCOMPARE(model.ItemKey(MenuName::MainMenu, index), 901);
    }
};

WORTEL_TEST(MenusTest)
#include "tst_menus.moc"
