// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/gate.h"

#include "platform/work.h"

Gate::Passage::~Passage()
{
    if (gate_ != nullptr)
        gate_->leave();
}

bool Gate::letsIn(Way way) const { return !closing_ && (way == Way::Look || depth_ == 0); }

Gate::Passage Gate::enter(Way way) { return letsIn(way) ? stay() : Passage(nullptr); }

Gate::Passage Gate::stay()
{
    ++depth_;
    return Passage(this);
}

Gate::Passage Gate::openBox()
{
    Passage passage = stay();
    emit boxOpens(); // who keeps what was moved lets events run
    return closing_ ? Passage(nullptr) : std::move(passage);
}

void Gate::leave()
{
    if (--depth_ == 0 && (closing_ || !waiting_.empty()))
        goOnLater();
}

void Gate::whenFree(std::function<void()> task)
{
    waiting_.push_back(std::move(task));
    if (depth_ == 0)
        goOnLater();
}

void Gate::cancelWork()
{
    if (work_ != nullptr)
        work_->cancel();
}

void Gate::requestClose()
{
    if (closing_)
        return;
    closing_ = true;
    waiting_.clear();
    if (work_ != nullptr)
        work_->stop();
    emit closeRequested();
    if (depth_ == 0)
        goOnLater();
}

/// From the event loop: whoever leaves last may stand in the middle of one of the window system's own walks.
void Gate::goOnLater()
{
    if (!std::exchange(goesOnLater_, true))
        QMetaObject::invokeMethod(this, &Gate::goOn, Qt::QueuedConnection);
}

void Gate::goOn()
{
    goesOnLater_ = false;
    if (depth_ > 0)
        return; // the last one to leave calls again
    if (closing_) {
        if (!std::exchange(closed_, true))
            emit closeNow();
        return;
    }
    if (waiting_.empty())
        return;
    const std::function<void()> task = std::move(waiting_.front());
    waiting_.pop_front();
    const Passage passage = stay();
    task();
}
