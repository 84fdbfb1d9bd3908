// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// The ten best of one kind, the lowest number of clicks first, and their stored form: ten records joined by
/// "~", each score, ",", name, the score right-aligned in three places, so that the order of the texts is
/// that of the numbers up to 999.
class TopTen
{
public:
    static constexpr int places = 10;
    /// The list of a new game, word for word with its unordered middle: it is sorted whenever it is read.
    static constexpr char16_t seed[] = u"999,Wortel~998,Wortel~996,Wortel~997,Wortel~994,Wortel~992,Wortel~"
                                       u"995,Wortel~993,Wortel~991,Wortel~990,Wortel";

    struct Record
    {
        int score;
        QString name;
        bool operator==(const Record &) const = default;
    };

    /// Reads and sorts a stored list. Records of equal score are in the order of their names, because the
    /// records are sorted as texts. Pieces that are no record are left out, the ten best stay, and what is
    /// missing is filled up from the seed.
    static TopTen fromText(const QString &stored);
    QString text() const;

    const QList<Record> &records() const { return records_; }
    /// Where that number of clicks would stand: behind older records of the same; nothing behind the tenth.
    std::optional<int> placeOf(int clicks) const;
    /// Puts it there; the records from there on move down and the last one goes. An empty name takes over
    /// that of the record that stood there.
    void enter(int place, int clicks, const QString &name);

private:
    QList<Record> records_;
};
