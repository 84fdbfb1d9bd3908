// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "platform/link_message.h"

void fuzz::link(const QByteArray &bytes)
{
    LinkMessage atOnce;
    atOnce.take(bytes);
    LinkMessage inPieces;
    qsizetype at = 0;
    for (qsizetype size = 1; at < bytes.size(); at += size++)
        inPieces.take(bytes.mid(at, size));
    promise(atOnce.state() == inPieces.state() && atOnce.arguments() == inPieces.arguments(),
            "a message is the same however it arrives");
    promise(atOnce.state() == LinkMessage::State::Whole || atOnce.arguments().isEmpty(),
            "no arguments but whole ones");
    if (atOnce.state() == LinkMessage::State::Whole)
        promise(LinkMessage::encode(atOnce.arguments()) == bytes, "a message is written as it was read");
}
