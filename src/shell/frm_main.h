// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/play_state.h"
#include "platform/word_lists.h"
#include "shell/handbook/help.h"
#include "widgets/control_sheet.h"
#include "widgets/main_controls.h"
#include "widgets/main_work_view.h"
#include "widgets/short_note.h"
#include "widgets/status_line.h"

#include <QWidget>

#include <memory>

class PressButton;
struct Ground;
struct Rooms;

/// What the entry procedure knows when it makes the main window.
struct StartFacts
{
    QString CommandLine;
    int ScreenResolutionCode = 1;
    bool RecoverOnStart = false;
};

/// The main window and hub: it makes the controls, makes the rooms, wires them, and forwards events. What a
/// procedure does stands in the room that owns it. What Qt calls from within its own walks (activation,
/// resizing, closing, a drop) only asks the gate; what it starts comes from the event loop.
class frmMain : public QWidget
{
    Q_OBJECT

public:
    /// The size of the window until it is shown: the first board is laid out for it. Smaller on a smaller
    /// screen.
    static constexpr QSize designSize{632, 573};

    frmMain(Ground &ground, const StartFacts &facts);
    ~frmMain() override;

    /// Reads the settings and fills the first board. False if the program has to end: a word file is missing,
    /// and the user has been told.
    bool Form_Load();
    /// Text that a second start has handed over, the window's `HiddenText`: each piece between blanks is
    /// opened as a session.
    void HiddenText_Change(const QString &text);

    const MainControls &controls() const { return controls_; }
    // For whoever plays the program without a hand at the mouse.
    Rooms &rooms() { return *rooms_; }
    PlayState &play() { return play_; }
    WordLists &lists() { return lists_; }
    ControlSheet &sheet() { return sheet_; }

    // What menus and tools of the window itself do.
    void showOptions();
    void showAbout();
    void showHelp();
    void saveAsWeb();

signals:
    void unloaded();
    /// Something that the menus' states hang on has changed.
    void menusStale();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeReady();
    void Form_Activate();
    void showWelcome();
    void tellLeftOut();
    void unload();
    void Form_QueryUnload();
    void Form_Unload();
    void closeBoxes();
    void tellWhyAtRest(const QWidget *tool);
    void UpdateCaption();
    void loadKept();
    void wire();
    void wireBoard();
    void wireWords();
    void wireLists();
    void wireModes();
    void wireKeeping();
    void wireCommands();
    template <typename Left, typename Right> void onPress(PressButton *tool, Left left, Right right);

    Ground &ground_;
    StartFacts facts_;
    PlayState play_;
    WordLists lists_;
    MainControls controls_;
    ControlSheet sheet_{controls_};
    StatusLine status_;
    MainWorkView workView_{sheet_, status_};
    ShortNote *note_;
    std::unique_ptr<Rooms> rooms_;
    Help help_;
    QString hiddenText_;
    bool cmdLineReady_ = false;
    bool activated_ = false;
    bool firstBoardReplaced_ = false;
    bool activationWaits_ = false;
    bool ended_ = false;
};
