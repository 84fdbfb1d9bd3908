// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <deque>
#include <functional>
#include <utility>

class Work;
class WorkView;

/// The one gate that every way into the game passes: a press on a tile or a tool, a key, a menu entry, a
/// timer, a dropped file, the text of a second start, closing. There is one thread, and what lets events run
/// can be entered; the gate keeps the stack in order. While something is on it (a command, a work, a box) a
/// hand may look and cancel, what comes from outside waits and is done afterwards in its order, and the rest
/// is refused. Closing cancels what runs, waits until the stack has come back, and is told once it is empty.
class Gate : public QObject
{
    Q_OBJECT

public:
    enum class Way {
        Play, ///< changes tiles, words, lists, a mode: only while nothing else is on the stack
        Look, ///< filters, lists, tips, the handbook: at any time until the window closes
    };

    /// One stay on the stack; false if it was not let in. What may let events run stands in one.
    class Passage
    {
    public:
        explicit Passage(Gate *gate)
            : gate_(gate)
        {}
        Passage(Passage &&other) noexcept
            : gate_(std::exchange(other.gate_, nullptr))
        {}
        Passage &operator=(Passage &&) = delete;
        ~Passage();
        explicit operator bool() const { return gate_ != nullptr; }

    private:
        Gate *gate_;
    };

    /// Asks to come in. Nothing happens if the answer is no.
    [[nodiscard]] Passage enter(Way way);
    bool letsIn(Way way) const;
    /// Something that is already inside, and may let events run, is on the stack as long as the result lives:
    /// a box, the load of the window.
    [[nodiscard]] Passage stay();
    /// The same for a box: whatever a hand holds is let go first (`boxOpens`). False if the window closes:
    /// then no box is shown.
    [[nodiscard]] Passage openBox();

    /// What comes from outside: it is done from the event loop as soon as nothing is on the stack, each in
    /// its order. Dropped if the window closes before.
    void whenFree(std::function<void()> task);

    /// The running work, or nullptr. Only `Work` sets it.
    Work *work() const { return work_; }
    void setWork(Work *work) { work_ = work; }
    /// Where a work shows itself that says nothing else: the main window. nullptr, until there is one.
    WorkView *view() const { return view_; }
    void setView(WorkView *view) { view_ = view; }
    /// Cancels the running work, if it may be cancelled.
    void cancelWork();

    /// The window is to close. Comes back at once; `closeNow` follows from the event loop.
    void requestClose();
    /// True from the first request on: nothing is begun, shown, written or committed any more.
    bool isClosing() const { return closing_; }
    bool isFree() const { return depth_ == 0; }
    /// Something that came from outside is still to be done.
    bool hasWaiting() const { return !waiting_.empty(); }

signals:
    /// A box, a menu or another window is about to take the hand.
    void boxOpens();
    /// The window is to close: open boxes and menus are to be closed, as if with Esc.
    void closeRequested();
    /// The stack is empty and the window is to close.
    void closeNow();

private:
    void leave();
    void goOnLater();
    void goOn();

    int depth_ = 0;
    bool closing_ = false;
    bool closed_ = false;
    bool goesOnLater_ = false;
    Work *work_ = nullptr;
    WorkView *view_ = nullptr;
    std::deque<std::function<void()>> waiting_;
};

/// A slot that does its action only if the gate lets it in.
template <typename Action> auto throughGate(Gate &gate, Gate::Way way, Action action)
{
    return [&gate, way, action]<typename... Arguments>(Arguments &&...arguments) {
        if (const Gate::Passage passage = gate.enter(way))
            action(std::forward<Arguments>(arguments)...);
    };
}
