// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/gate.h"

#include <QString>

class EventPump;
struct Ground;

/// What a work shows, and which of its doors are open.
struct WorkPlan
{
    enum Marks : unsigned {
        Plain = 0,      ///< the hourglass and resting tools
        Bar = 1,        ///< the progress bar with "Bitte warten..." from the start
        Cancel = 2,     ///< the cancel "X" from the start
        Words = 4,      ///< words are prepared: the mode's own button stays, for it cancels too
        HidesModes = 8, ///< the buttons of game and retype mode are hidden
    };
    unsigned marks = Plain;
    int maximum = 1; ///< of the bar
};

/// The place where a work shows itself: the main window, or the window of a game.
class WorkView
{
public:
    virtual ~WorkView() = default;
    virtual void begin(const WorkPlan &plan) = 0;
    virtual void tell(const QString &caption) = 0;
    virtual void offerCancel() = 0;
    virtual void end() = 0;
};

/// A long work that lets events through. It stands on the gate's stack, shows itself on its view while it
/// lives, and ends by itself all that it began, however it is left. Works do not nest: one that is made while
/// another runs is a part of that one, shares its cancel and shows nothing of its own.
class Work
{
public:
    /// Shows itself on the gate's view, the main window.
    explicit Work(const Ground &ground, const WorkPlan &plan = {});
    /// Shows itself on the view of another window.
    Work(const Ground &ground, const WorkPlan &plan, WorkView *view);
    ~Work();
    Work(const Work &) = delete;
    Work &operator=(const Work &) = delete;

    /// The caption of the bar.
    void tell(const QString &caption);
    /// Shows the "X" from now on.
    void offerCancel();

    /// Lets events in, a hand's input too, if some wait; cheap enough for every round of a search. False if
    /// the work is to end: it was cancelled, or the window closes.
    bool goesOn();
    bool inputWaits() const;
    /// Lets what has been begun appear, without asking for input.
    void appear();

    bool isCancelled() const { return root_->cancelled_ || root_->stopped_; }
    /// The hand's "enough": a later part of the same work goes on with what there is. A window that closes is
    /// not forgotten.
    void forgetCancel() { root_->cancelled_ = false; }
    void cancel() { root_->cancelled_ = true; }
    /// The window closes.
    void stop() { root_->stopped_ = true; }
    bool preparesWords() const { return (root_->marks_ & WorkPlan::Words) != 0; }

private:
    bool isPart() const { return root_ != this; }

    Gate &gate_;
    EventPump &pump_;
    WorkView *view_;
    Work *root_;
    Gate::Passage passage_;
    unsigned marks_;
    bool cancelled_ = false;
    bool cancelOffered_ = false;
    bool stopped_ = false;
};
