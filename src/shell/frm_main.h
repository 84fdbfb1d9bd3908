// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/modes.h"
#include "platform/word_lists.h"
#include "shell/handbook/help.h"
#include "widgets/main_controls.h"

#include <QWidget>

#include <memory>

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
/// procedure does stands in the room that owns it.
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
    /// For whoever plays the program without a hand at the mouse.
    Rooms &rooms() { return *rooms_; }

    // What menus and tools of the window itself do.
    void showOptions();
    void showAbout();
    void showHelp();

signals:
    void unloaded();

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
    void Form_QueryUnload();
    void Form_Unload();
    void UpdateCaption();
    void takeDifficulty();
    void loadKept();
    void startTips();
    void stopTimers();
    void wire();
    void wireBoard();
    void wireLanguage();
    void wireKeeping();
    void wireModes();
    void carryOut(int id);
    /// Tells in one sentence that a command belongs to a part of the game that is still to be built.
    void comesLater();

    Ground &ground_;
    StartFacts facts_;
    Modes modes_;
    WordLists lists_;
    MainControls controls_;
    std::unique_ptr<Rooms> rooms_;
    Help help_;
    QString hiddenText_;
    bool cmdLineReady_ = false;
    bool activated_ = false;
    bool ended_ = false;
};
