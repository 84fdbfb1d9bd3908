// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/hand_over.h"

#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/instance_link.h"
#include "platform/product.h"
#include "shell/frm_main.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

void openWhenFree(InstanceLink &link, Gate &gate, frmMain &form)
{
    gate.whenFree([&link, &form] {
        if (const std::optional<QStringList> arguments = link.takeNext())
            form.openHandedOver(*arguments);
    });
}

} // namespace

start_steps::Next hand_over::toFirst(Ground &ground, InstanceLink &link, const QStringList &arguments)
{
    using enum InstanceLink::Outcome;
    const InstanceLink::Outcome outcome = link.handOver(arguments);
    if (outcome == IsFirst)
        return start_steps::Next::GoOn;
    if (outcome == NoAnswer)
        ground.boxes.plainBox(
            Boxes::Icon::Warning, product::name,
            u"Wortel-Meister läuft schon, antwortet aber nicht.\n\n"
            "Warte einen Augenblick und versuche es noch einmal. Wenn das nicht hilft, melde "
            "dich am Computer ab und wieder an."_s);
    if (outcome == TooLong)
        ground.boxes.plainBox(
            Boxes::Icon::Warning, product::name,
            u"Wortel-Meister läuft schon.\n\nSo viele Sitzungen auf einmal kann es nicht öffnen."_s);
    return start_steps::Next::End;
}

void hand_over::receive(InstanceLink &link, Ground &ground, frmMain &form)
{
    QObject::connect(&ground.gate, &Gate::closeRequested, &link, &InstanceLink::stopListening);
    QObject::connect(&link, &InstanceLink::arrived, &form,
                     [&link, &ground, &form] { openWhenFree(link, ground.gate, form); });
    for (std::size_t waiting = link.waiting(); waiting > 0; --waiting)
        openWhenFree(link, ground.gate, form);
}

void hand_over::passOn(std::unique_ptr<InstanceLink> link)
{
    QStringList left;
    while (const std::optional<QStringList> arguments = link->takeNext())
        left << *arguments;
    link.reset();
    if (!left.isEmpty())
        QProcess::startDetached(QCoreApplication::applicationFilePath(), left);
}
