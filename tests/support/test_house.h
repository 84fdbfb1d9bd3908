// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frm_main.h"
#include "shell/rooms.h"
#include "support/test_ground.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/msg_scroller.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"
#include "widgets/store_list.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>

/// What a popup menu of the board was asked for, and what is chosen in it: it is not shown.
struct ScriptedMenu
{
    int choose = 0; ///< id of the item; 0 closes the menu
    int shown = 0;
    MenuName lastName = MenuName::MainMenu;
    QPoint lastPosition;
};

/// The real main window with all its rooms and wires, on the ground of a test: short word lists of its own,
/// an empty board, boxes that answer from queues, menus that choose what the test has set. `loadsAtOnce`
/// false leaves `Form_Load` to the test.
struct TestHouse
{
    explicit TestHouse(quint64 seed = 1, const QSize &size = {632, 573}, bool loadsAtOnce = true,
                       const StartFacts &facts = {});
    ~TestHouse();

    TestGround t;

private:
    /// Before the window is made, which reads the settings when it is loaded.
    struct Files
    {
        explicit Files(TestGround &ground);
    } files_{t};

public:
    frmMain form;
    Rooms &r;
    const MainControls &controls;
    PlayState &play;
    WordLists &lists;
    Gate &gate;
    ScriptedMenu menu;

    /// Lays a tile of that kind and counts it, as a command does.
    void lay(const TileKind &kind, int x, int y, const QString &text);
    /// The tiles in store order, as "x,y text".
    QStringList described() const;
    QStringList texts() const;
    /// The captions of the four counters.
    QStringList counters() const;
    /// True if every counter says what lies on the board.
    bool countersEqualTiles() const;
    static bool countersEqualTiles(const Rooms &rooms);
    /// The colour on the board at that logical pixel.
    QColor pixel(int x, int y) const;

    // The hand
    void press(const QPoint &point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers shift = {});
    void drag(const QPoint &point);
    void release(const QPoint &point, Qt::MouseButton button = Qt::LeftButton);
    void click(const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers shift = {});
    /// Chooses a command as the menu of that point does.
    void run(command::From from, int id, const QPoint &point = {300, 300});
    /// Presses a tool and lets it go.
    void tool(PressButton *button, Qt::MouseButton with = Qt::LeftButton, Qt::KeyboardModifiers shift = {});
    /// Ctrl and a letter, given to what has the focus.
    void key(Qt::Key letter);
    /// True if the main menu lets that command be chosen.
    bool offers(int id) const;
    /// What waits at the gate and in the event loop runs.
    static void settle();

    /// The house at rest: what does not hold, or nothing. For the end of every wild test.
    QString trouble() const { return troubleOf(r, controls, play, gate); }
    /// The same for a window that another test has made.
    static QString troubleOf(Rooms &r, const MainControls &controls, const PlayState &play, const Gate &gate);

private:
    void mouse(QEvent::Type type, const QPoint &point, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers shift);
};
