// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/work.h"

#include "platform/clock.h"
#include "platform/ground.h"

Work::Work(const Ground &ground, const WorkPlan &plan)
    : Work(ground, plan, ground.gate.view())
{}

Work::Work(const Ground &ground, const WorkPlan &plan, WorkView *view)
    : gate_(ground.gate)
    , pump_(ground.pump)
    , view_(view)
    , root_(gate_.work() != nullptr ? gate_.work() : this)
    , passage_(gate_.stay())
    , marks_(plan.marks)
    , cancelOffered_((plan.marks & WorkPlan::Cancel) != 0)
    , stopped_(gate_.isClosing())
{
    if (isPart())
        return;
    gate_.setWork(this);
    if (view_ != nullptr)
        view_->begin(plan);
}

Work::~Work()
{
    if (isPart())
        return;
    gate_.setWork(nullptr);
    if (view_ != nullptr)
        view_->end();
}

void Work::tell(const QString &caption)
{
    if (root_->view_ != nullptr)
        root_->view_->tell(caption);
}

void Work::offerCancel()
{
    if (root_->view_ != nullptr && !std::exchange(root_->cancelOffered_, true))
        root_->view_->offerCancel();
}

bool Work::inputWaits() const { return pump_.inputWaiting(); }

bool Work::goesOn()
{
    if (pump_.inputWaiting())
        pump_.serve();
    return !isCancelled();
}

void Work::appear() { pump_.yield(); }
