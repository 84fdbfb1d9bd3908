// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/gate.h"
#include "platform/play_state.h"
#include "platform/word_lists.h"
#include "shell/handbook/help.h"
#include "shell/size_change.h"
#include "widgets/control_sheet.h"
#include "widgets/long_press.h"
#include "widgets/main_controls.h"
#include "widgets/main_work_view.h"
#include "widgets/short_note.h"
#include "widgets/status_line.h"

#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class PressButton;
struct Continuation;
struct Ground;
struct Rooms;

/// What the entry procedure knows when it makes the main window.
struct StartFacts
{
    QStringList CommandLine;
    int ScreenResolutionCode = 1;
    bool RecoverOnStart = false;
    bool CanStore = true;
    QString Complaint{}; ///< what the user has to be told once the window stands, or nothing
    int SizePercent = 100;   ///< the size that the program runs at
    QSize Screen{1366, 768}; ///< the primary one, in pixels as they are at 100 %
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
    /// The same for a window that takes the place of another: it shows what that has shown.
    void goOn(const Continuation &kept);
    /// Ends the window so that another can take its place: no goodbye, and the backup stays. From now on
    /// nobody is let in.
    void leave();
    /// What a second start has handed over, the window's `HiddenText`: once nothing else is under way, each
    /// session that it names is opened.
    void HiddenText_Change(const QStringList &arguments);
    void HiddenText_Change(const QString &text) { HiddenText_Change(QStringList{text}); }
    /// The same at once, for who stands in a passage of the gate.
    void openHandedOver(const QStringList &arguments);

    const MainControls &controls() const { return controls_; }
    // For whoever plays the program without a hand at the mouse.
    Rooms &rooms() { return *rooms_; }
    PlayState &play() { return play_; }
    WordLists &lists() { return lists_; }
    ControlSheet &sheet() { return sheet_; }
    Ground &ground() { return ground_; }
    SizeChange &sizeChange() { return size_; }
    /// The handbook's window while it is open.
    HelpWindow *handbook() const { return help_.window(); }

    // What menus and tools of the window itself do.
    void showOptions();
    void showAbout();
    void showHelp();
    void saveAsWeb();

signals:
    void unloaded();
    /// The window is to be made anew at another size; nothing stands in the way.
    void sizeChangeDue();
    /// Something that the menus' states hang on has changed.
    void menusStale();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
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
    void closeOnTop();
    void showNote(const QString &text);
    void tellWhyAtRest(const QWidget *tool);
    void UpdateCaption();
    void tellNotOpened(const QStringList &missing, const QStringList &switches);
    void tellLater(const QString &text);
    void loadForm();
    void loadKept();
    void offerToFit();
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
    SizeChange size_;
    std::unique_ptr<Continuation> opensAgain_; ///< once the window is seen
    std::optional<Gate::Passage> left_;
    LongPress longPress_;
    QStringList hiddenText_;
    QTimer boxCloser_;
    std::vector<std::function<void()>> onceActivated_;
    bool cmdLineReady_ = false;
    bool activated_ = false;
    bool firstBoardReplaced_ = false;
    bool activationWaits_ = false;
    bool boardOpened_ = false; ///< before the window was seen
    bool ended_ = false;
};
