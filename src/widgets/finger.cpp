// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/finger.h"

#include <QMouseEvent>
#include <QPointingDevice>

bool finger::isBehind(const QMouseEvent &event)
{
    return event.pointingDevice()->type() == QInputDevice::DeviceType::TouchScreen ||
           event.pointerType() == QPointingDevice::PointerType::Finger ||
           event.pointerType() == QPointingDevice::PointerType::Pen ||
           event.source() == Qt::MouseEventSynthesizedByQt ||
           event.source() == Qt::MouseEventSynthesizedBySystem;
}
