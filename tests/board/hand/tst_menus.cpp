// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/popup_menu.h"
#include "platform/play_state.h"
#include "support/test_class.h"
#include "support/test_ground.h"

#include <QMenu>
#include <QPointingDevice>
#include <QScreen>
#include <QWindow>

#include <functional>

using Kind = MenuItem::Kind;

namespace {

/// What is played, and what can be undone, in words: "game vowels", "pseudo", "undo".
struct Facts
{
    explicit Facts(const QString &words = {}) { become(words); }
    void become(const QString &words)
    {
        const QStringList sources{u"user"_s, u"random"_s, u"pseudo"_s, u"chosen"_s};
        if (const auto source = sources.indexOf(words); source >= 0)
            play.startRetyping(static_cast<WordSource>(source));
        if (words.startsWith(u"game"_s))
            play.startGame(PlayState::Phase::Playing,
                           words.contains(u"vowels"_s) ? Vowels::Short : Vowels::None);
        now.canUndo = words == u"undo"_s;
        now.canRedo = words == u"redo"_s;
        now.useUndo = words != u"no undo"_s;
    }

    PlayState play;
    MenuFacts now{.play = play};
};

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

class MenusTest : public QObject
{
    Q_OBJECT

private slots:
    void everyRow()
    {
        for (const MenuName name :
             {MenuName::MainMenu, MenuName::PrefixMenu, MenuName::WortelMenu, MenuName::SuffixMenu}) {
            std::vector<const MenuItem *> all;
            const MenuTree tree = buildMenu(name, Facts().now);
            flatten(tree, all);
            QSet<int> ids;
            int index = 0;
            for (const MenuItem *item : all) {
                QCOMPARE(item->index, ++index);
                QVERIFY2(item->caption.isEmpty() == (item->kind == Kind::Separator),
                         qPrintable(item->caption));
                QVERIFY(!item->hint.contains(u'%'));
                const QString icon = u":/icons/menu/%1.svg"_s.arg(item->icon, 2, 10, QLatin1Char('0'));
                QVERIFY2(item->icon < 0 || QFile::exists(icon), qPrintable(icon));
                if (item->kind == Kind::Command)
                    ids.insert(item->id);
            }
            QVERIFY(ids.contains(0)); // the item that closes the menu
        }
    }

    void modeTurnsBranchesOff()
    {
        const QString lists = u"401 402 501 502 503 504 506"_s;
        const QString copying = u" 1600 1601 1602 1603 1604 1605 1606 1607 1608"_s;
        const QString rest = u" 1901 1904 2801 2802 901"_s;
        for (const auto &[mode, off] : {std::pair{u"undo"_s, u"2802"_s},
                                        {u"no undo"_s, u"2801 2802"_s},
                                        {u"game"_s, lists + copying + u" 1701 1702 1703"_s + rest},
                                        {u"user"_s, lists + u" 701 150 250 350 1701 1702 1703"_s + rest}}) {
            const Facts facts(mode);
            const MenuTree tree = buildMenu(MenuName::MainMenu, facts.now);
            std::vector<const MenuItem *> all;
            flatten(tree, all);
            QStringList disabled;
            for (const MenuItem *item : all)
                if (item->kind == Kind::Command && !item->enabled)
                    disabled << QString::number(item->id);
            QCOMPARE(disabled.join(u' '), off);
        }
    }

    void openingSubmenu_data()
    {
        columns<QString, QString, QString>("caption", "mode", "expected");
        const QString retype = u"Abschreiben"_s;
        QTest::newRow("retype off") << retype << u""_s << u"1600+ 1601+ 1607+ 1608+"_s;
        QTest::newRow("nonsense") << retype << u"pseudo"_s << u"1600- 1601- 1607+* 1608-"_s;
        QTest::newRow("retype in a game") << retype << u"game"_s << u"1600- 1601- 1607- 1608-"_s;
        QTest::newRow("no step") << u"Aktion"_s << u""_s << u"2801- 2802-"_s;
        QTest::newRow("undo") << u"Aktion"_s << u"undo"_s << u"2801+ 2802-"_s;
        QTest::newRow("redo") << u"Aktion"_s << u"redo"_s << u"2801- 2802+"_s;
        const QString games = u"S p i e l e"_s;
        QTest::newRow("no game") << games << u""_s << u"701+ 1701+"_s;
        QTest::newRow("game") << games << u"game"_s << u"701+* 1701-"_s;
        QTest::newRow("vowel game") << games << u"game vowels"_s << u"701+ 1701-"_s;
    }
    void openingSubmenu()
    {
        QFETCH(QString, caption);
        QFETCH(QString, mode);
        QFETCH(QString, expected);
        // The menus are built before the mode begins, unless the mode turns the whole branch off.
        Facts facts(caption == u"Abschreiben"_s && mode == u"game"_s ? mode : QString());
        MenuModel model([&] { return facts.now; });
        model.CreateMenus();
        facts.become(mode);
        const int index = itemNamed(model.Restore(MenuName::MainMenu), caption).index;
        for (int opening = 0; opening < 2; ++opening) { // a second one must find the branch again
            QVERIFY(model.CP_InitPopupMenu(index));
            const MenuItem &item = itemNamed(model.Restore(MenuName::MainMenu), caption);
            QCOMPARE(states(item.children), expected);
            const MenuItem &last = item.children.back();
            QCOMPARE(model.ItemKey(MenuName::MainMenu, last.index), last.id);
        }
    }

    /// The menu opens at the corner of the screen and stays inside it.
    void chosenWithKeysOrMouse()
    {
        // key: the number of the item that is chosen
        for (const auto &[mode, name, caption, mouse, key] :
             {std::tuple{u""_s, MenuName::SuffixMenu, u"Bearbeiten"_s, false, 104},
              {u""_s, MenuName::SuffixMenu, u"Bearbeiten"_s, true, 104},
              {u"game"_s, MenuName::MainMenu, u"Optionen"_s, false, 0},
              {u"game"_s, MenuName::MainMenu, u"Optionen"_s, true, 0},
              {u""_s, MenuName::MainMenu, u"Menü schließen\tESC"_s, true, 0}}) {
            TestGround t;
            const Facts facts(mode);
            MenuModel model([&] { return facts.now; });
            model.CreateMenus();
            QWidget owner;
            owner.show();
            PopupMenu popup(t.gate, model, &owner);
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            QTimer::singleShot(50, &owner, [&, &caption = caption, &mouse = mouse] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                QVERIFY(menu != nullptr);
                QVERIFY(screen.contains(menu->geometry()));
                for (QAction *action : menu->actions()) {
                    if (action->text() != caption)
                        continue;
                    // A faded row holds no letter in ink.
                    const QImage row = menu->grab(menu->actionGeometry(action)).toImage();
                    bool ink = false;
                    for (int x = 0; x < row.width() && !ink; ++x)
                        for (int y = 0; y < row.height() && !ink; ++y)
                            ink = qGray(row.pixel(x, y)) < 80;
                    QCOMPARE(ink, action->isEnabled());
                    if (mouse) {
                        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                    } else {
                        menu->setActiveAction(action);
                        QTest::keyClick(menu, Qt::Key_Return);
                    }
                }
                menu->close(); // if it is still open
            });
            const int index = popup.ShowPopupMenu(name, screen.bottomRight());
            QCOMPARE(model.ItemKey(name, index), key);
            QVERIFY(t.gate.isFree());
        }
    }

    void isShiftedNoMoreThanNeeded()
    {
        TestGround t;
        const Facts facts;
        MenuModel model([&] { return facts.now; });
        model.CreateMenus();
        PopupMenu popup(t.gate, model, nullptr);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        // right and lower: the edges that the menu touches
        for (const auto &[pointer, right, lower] :
             {std::tuple{QPoint(20, 5), false, false},
              {QPoint(20, screen.bottom() - 400), false, true}, // a little too low
              {QPoint(screen.right() - 9, 5), true, false}}) {
            QCursor::setPos(pointer);
            QRect place;
            QTimer::singleShot(50, this, [&place] {
                place = QApplication::activePopupWidget()->geometry();
                QApplication::activePopupWidget()->close();
            });
            popup.ShowPopupMenu(MenuName::MainMenu, pointer);
            QCOMPARE(place.left() == pointer.x() ? -1 : place.right(), right ? screen.right() : -1);
            QCOMPARE(place.top() == pointer.y() ? -1 : place.bottom(), lower ? screen.bottom() : -1);
        }
    }

    void openingPressChoosesNothing_data()
    {
        columns<bool, QPoint>("finger", "from"); // the point counts from the lower right corner of the board
        for (const bool finger : {false, true}) {
            const char *hand = finger ? "finger" : "mouse";
            QTest::addRow("%s, on the lower edge", hand) << finger << QPoint(-700, -10);
            QTest::addRow("%s, in the corner", hand) << finger << QPoint(-20, -10);
        }
    }
    /// A board on the whole screen, so that the menu lies under the hand, which trembles before it lets go.
    void openingPressChoosesNothing()
    {
        QFETCH(bool, finger);
        QFETCH(QPoint, from);
        TestGround t;
        const Facts facts;
        MenuModel model([&] { return facts.now; });
        model.CreateMenus();
        QWidget board;
        board.setGeometry(board.screen()->geometry());
        board.show();
        QVERIFY(QTest::qWaitForWindowActive(&board));
        PopupMenu popup(t.gate, model, &board);
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
