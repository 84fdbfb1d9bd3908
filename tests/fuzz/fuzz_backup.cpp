// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "persistence/backup_file.h"

void fuzz::backup(const QByteArray &bytes)
{
    const std::vector<BackupRecord> records = backup_file::decode(bytes);
    promise(records.size() <= static_cast<std::size_t>(backup_file::largestCount),
            "no more than 2001 records");

    // The tiles that were read can be written, and are then read again; keys are made anew.
    MyObj array;
    for (const BackupRecord &record : records)
        array.AddElementToMyObj(u'M' + QString::number(array.elements().size()), record.type, record.left,
                                record.top, record.caption);
    const std::vector<BackupRecord> again = backup_file::decode(backup_file::encode(array));
    const std::size_t expected =
        std::min(records.size() + 1, static_cast<std::size_t>(backup_file::largestCount));
    promise(again.size() == expected, "as many records as were written");
    for (std::size_t i = 1; i < again.size(); ++i) {
        const BackupRecord &before = records[i - 1];
        const BackupRecord &after = again[i];
        promise(after.key == u'M' + QString::number(i) && before.type == after.type &&
                    before.left == after.left && before.top == after.top && before.caption == after.caption,
                "a record is read as it was written");
    }
}
