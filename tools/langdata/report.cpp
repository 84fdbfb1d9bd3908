// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include "maker.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

constexpr qsizetype lineLength = 110;

struct Reason
{
    Drop drop;
    QStringView title;
    bool listed; ///< the long ones are only counted
};

constexpr Reason reasons[] = {
    {Drop::Blocked, u"unfit for children (blocklist)", true},
    {Drop::Excluded, u"no word for this game (exclude list)", true},
    {Drop::NominalInfinitive, u"verb used as a noun, no word of its own", true},
    {Drop::Rejected, u"not accepted by the Hunspell library", false},
    {Drop::Unfamiliar, u"more than one tile of a kind, and not familiar", false},
};

void writeTable(QTextStream &out, const std::vector<ListResult> &lists)
{
    out << "Triples: share of prefix + stem + suffix that are words, on the whole list and on the worst of\n"
           "400 seeded boards of 20 tiles each. Tries: random triples until ten different words are found,\n"
           "on the mean and on the worst board. Board: words of the tiles of the middle and the poorest "
           "board.\n\n";
    out << u"%1%2%3%4%5%6%7%8%9\n"_s.arg(u"list"_s, -30)
               .arg(u"stems"_s, 6)
               .arg(u"words"_s, 7)
               .arg(u"triples"_s, 9)
               .arg(u"worst"_s, 8)
               .arg(u"tries"_s, 7)
               .arg(u"worst"_s, 7)
               .arg(u"board"_s, 7)
               .arg(u"poorest"_s, 9);
    for (const ListResult &list : lists) {
        const BoardStats &boards = list.boards;
        out << u"%1%2%3%4 %%5 %%6%7%8%9\n"_s.arg(list.name, -30)
                   .arg(list.stems, 6)
                   .arg(list.words, 7)
                   .arg(100 * boards.listShare, 7, 'f', 1)
                   .arg(100 * boards.worstShare, 6, 'f', 1)
                   .arg(boards.meanTries, 7, 'f', 0)
                   .arg(boards.worstTries, 7, 'f', 0)
                   .arg(boards.middleWords, 7)
                   .arg(boards.fewestWords, 9);
    }
}

void writeWords(QTextStream &out, const QStringList &words)
{
    QString line;
    for (const QString &word : words) {
        if (!line.isEmpty() && line.size() + word.size() + 1 > lineLength) {
            out << line << '\n';
            line.clear();
        }
        line += (line.isEmpty() ? QString() : u" "_s) + word;
    }
    if (!line.isEmpty())
        out << line << '\n';
}

} // namespace

QByteArray reportBytes(const std::vector<ListResult> &lists, const Maker &maker)
{
    QByteArray bytes;
    QTextStream out(&bytes);
    writeTable(out, lists);
    for (const Reason &reason : reasons) {
        const QStringList &words = maker.dropped(reason.drop);
        out << "\nLeft out, " << reason.title << ": " << words.size() << '\n';
        if (reason.listed)
            writeWords(out, words);
    }
    out << "\nIn the exclude list, but never offered: " << maker.idleExcludes().size() << '\n';
    writeWords(out, maker.idleExcludes());
    out.flush();
    return bytes;
}

} // namespace langdata
