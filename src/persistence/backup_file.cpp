// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup_file.h"

#include "platform/windows1252.h"

#include <QtEndian>

#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype largestText = 0xFFFF;

template <typename Number> void put(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

void putText(QByteArray &bytes, const QByteArray &text)
{
    const QByteArray fitting = text.first(std::min(text.size(), largestText));
    put(bytes, static_cast<quint16>(fitting.size()));
    bytes += fitting;
}

/// Walks through the bytes; once a field does not fit into what is left, everything further fails.
class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : bytes_(bytes)
    {}

    template <typename Number> Number number()
    {
        if (!has(sizeof(Number)))
            return 0;
        const auto value = qFromLittleEndian<Number>(bytes_.constData() + at_);
        at_ += static_cast<qsizetype>(sizeof(Number));
        return value;
    }

    QByteArray text()
    {
        const qsizetype length = number<quint16>();
        if (!has(static_cast<std::size_t>(length)))
            return {};
        QByteArray value = bytes_.mid(at_, length);
        at_ += length;
        return value;
    }

    bool whole() const { return whole_; }
    bool atEnd() const { return at_ >= bytes_.size(); }

private:
    bool has(std::size_t count)
    {
        whole_ = whole_ && static_cast<std::size_t>(bytes_.size() - at_) >= count;
        return whole_;
    }

    const QByteArray &bytes_;
    qsizetype at_ = 0;
    bool whole_ = true;
};

std::optional<BackupRecord> readRecord(Reader &reader)
{
    BackupRecord record;
    record.key = windows1252::decode(reader.text());
    const QByteArray type = reader.text();
    record.type = type.size() == 1 ? type.front() : '\0';
    record.left = reader.number<qint32>();
    record.top = reader.number<qint32>();
    record.caption = windows1252::decode(reader.text());
    record.index = reader.number<qint16>();
    return reader.whole() ? std::optional(record) : std::nullopt;
}

} // namespace

void MyObj::AddElementToMyObj(const QString &key, char type, std::int32_t left, std::int32_t top,
                              const QString &caption)
{
    elements_.push_back({key, type, left, top, caption, Int16(elements_.size())});
}

void MyObj::addTiles(const TileList &tiles)
{
    elements_.reserve(elements_.size() + tiles.size());
    int number = 0;
    for (const auto &tile : tiles) {
        ++number;
        if (const TileKind *kind = kindOfColour(tile->BGColor))
            AddElementToMyObj(u'M' + QString::number(number), kind->backupLetter, tile->xLeft(), tile->yTop(),
                              tile->txt);
    }
}

QByteArray backup_file::encode(const MyObj &array)
{
    QByteArray bytes;
    for (const BackupRecord &record : array.elements()) {
        putText(bytes, record.key.toLatin1()); // a letter and digits
        putText(bytes, record.type ? QByteArray(1, record.type) : QByteArray());
        put(bytes, record.left);
        put(bytes, record.top);
        putText(bytes, windows1252::encodeLossy(record.caption));
        put(bytes, record.index.value());
    }
    return bytes;
}

std::vector<BackupRecord> backup_file::decode(const QByteArray &bytes)
{
    std::vector<BackupRecord> records;
    Reader reader(bytes);
    while (!reader.atEnd() && static_cast<int>(records.size()) < largestCount) {
        std::optional<BackupRecord> record = readRecord(reader);
        if (!record)
            break;
        records.push_back(std::move(*record));
    }
    return records;
}
