// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/link_message.h"

#include <QtEndian>

namespace {

constexpr QChar separator = QChar::Null;

} // namespace

std::optional<QByteArray> LinkMessage::encode(const QStringList &arguments)
{
    const QByteArray bytes = arguments.join(separator).toUtf8();
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
        arguments_.clear();
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
    if (!text.isValidUtf8())
        return State::Broken;
    if (!text.isEmpty())
        arguments_ = QString::fromUtf8(text).split(separator);
    return State::Whole;
}
