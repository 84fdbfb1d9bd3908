// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/word_store.h"

void fuzz::list(const QByteArray &bytes)
{
    const QString path = asFile(bytes);
    const QStringList words = readListFile(path);
    for (const QString &word : words) {
        promise(!word.isEmpty() && !word.startsWith(u' ') && !word.endsWith(u' '), "an entry is trimmed");
        promise(!word.contains(u'\n') && !word.contains(u'\r') && !word.contains(QChar::Null),
                "an entry is one line");
    }
    QStringList all = readListFile(path, true);
    all.removeAll(QString());
    promise(all == words, "blank lines are all that is left out");

    WordStore store;
    try {
        store.addAll(words);
    } catch (const RuntimeError &) {
        promise(store.count() == 32767, "an overflow keeps what fits");
    }
    for (const QString &word : words.first(std::min<qsizetype>(store.count(), 20)))
        promise(store.contains(word), "an entry is found");
    store.removeNeighbouringDuplicates();
    for (int row = 1; row < store.count(); ++row)
        promise(store.at(row) != store.at(row - 1), "no neighbours are equal");
}
