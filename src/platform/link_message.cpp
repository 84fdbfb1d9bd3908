// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/link_message.h"

#include <QtEndian>

std::optional<QByteArray> LinkMessage::encode(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (bytes.size() > static_cast<qsizetype>(largestText))
        return std::nullopt;
    QByteArray message(headerSize, Qt::Uninitialized);
    qToBigEndian(static_cast<quint32>(bytes.size()), message.data());
    return message + bytes;
}

LinkMessage::State LinkMessage::take(const QByteArray &bytes)
{
    if (state_ == State::Broken)
        return state_;
    bytes_ += bytes;
    state_ = judge();
    if (state_ == State::Broken) {
        bytes_.clear();
        text_.clear();
    }
    return state_;
}

LinkMessage::State LinkMessage::judge()
{
    if (bytes_.size() < headerSize)
        return State::Incomplete;
    const quint32 length = qFromBigEndian<quint32>(bytes_.constData());
    if (length > largestText)
        return State::Broken;
    const qsizetype whole = headerSize + static_cast<qsizetype>(length);
    if (bytes_.size() != whole)
        return bytes_.size() < whole ? State::Incomplete : State::Broken;
    const QByteArray text = bytes_.mid(headerSize);
    if (!text.isValidUtf8() || text.contains('\0'))
        return State::Broken;
    text_ = QString::fromUtf8(text);
    return State::Whole;
}
