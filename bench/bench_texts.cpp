// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "games/kernling/text_words.h"
#include "output/html_to_text.h"
#include "platform/gate.h"
#include "platform/rnd.h"
#include "platform/system_clock.h"

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <ctime>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/// Stems and endings of some thousand words.
QString makeWord(Rnd &rnd)
{
    static const QStringList starts{u"Ver"_s, u"ge"_s,   u"be"_s,   u"Haus"_s,
                                    u"auf"_s, u"über"_s, u"Wald"_s, u"un"_s};
    static const QStringList stems{u"wirk"_s, u"sprech"_s, u"fahr"_s, u"lauf"_s, u"glück"_s, u"fließ"_s,
                                   u"käuf"_s, u"spiel"_s,  u"dreh"_s, u"sing"_s, u"lern"_s,  u"schreib"_s};
    static const QStringList ends{u"en"_s, u"ung"_s,  u"er"_s,  u"lich"_s,
                                  u"t"_s,  u"heit"_s, u"los"_s, u"bar"_s};
    const auto drawn = [&](const QStringList &list) {
        return list.at(rnd.absInt(static_cast<double>(list.size())));
    };
    return drawn(starts) + drawn(stems) + (rnd() < 0.3 ? drawn(stems) : QString()) + drawn(ends);
}

QString sentence(Rnd &rnd)
{
    QString text = makeWord(rnd);
    for (int words = 5 + rnd.absInt(12); words > 0; --words)
        text += (words % 5 == 0 ? u", "_s : u" "_s) + makeWord(rnd);
    return text + u". "_s;
}

/// A page as schools have them: paragraphs, lists, tables, entities, comments, a script here and there.
QString makePage(qsizetype size)
{
    Rnd rnd(11);
    QString page = u"<HTML><HEAD><TITLE>Lesetexte</TITLE></HEAD>\n<BODY BGCOLOR=\"white\">\n"_s;
    page.reserve(size + 4000);
    while (page.size() < size) {
        page += u"<H2>"_s + makeWord(rnd) + u"</H2>\n<P ALIGN=\"left\">"_s;
        for (int i = 0; i < 6; ++i)
            page += sentence(rnd).replace(u"ü"_s, u"&uuml;"_s) + u"<B>"_s + makeWord(rnd) + u"</B>\n"_s;
        page += u"<BR><A HREF=\"seite.html\">"_s + makeWord(rnd) + u"</A> &amp; mehr<UL>\n"_s;
        for (int i = 0; i < 4; ++i)
            page += u"<LI>"_s + makeWord(rnd) + u"</LI>\n"_s;
        page += u"</UL><!-- Tabelle -->\n<TABLE BORDER=1>\n"_s;
        for (int i = 0; i < 4; ++i)
            page += u"<TR><TD>"_s + makeWord(rnd) + u"</TD><TD>"_s + sentence(rnd) + u"</TD></TR>\n"_s;
        page += u"</TABLE>\n<SCRIPT>if (a < b) { c(\"</P>\"); }</SCRIPT>\n"_s;
    }
    return page + u"</BODY></HTML>\n"_s;
}

/// As the window reads a page: events are let through on the way.
void readPage(const QString &page)
{
    Gate gate;
    LoopPump pump(gate);
    bench::keep(HTML2Text(page, [&](qsizetype) {
        if (pump.inputWaiting())
            pump.serve();
        return true;
    }));
}

double processorSeconds(const rusage &usage)
{
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Processor time, of one's own and of a program that was waited for.
double spent(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return processorSeconds(usage);
}

constexpr qsizetype largePage = 9'000'000;

double browserRatio()
{
    const QString page = makePage(largePage);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"seite.html"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(page.toUtf8()) < largePage)
        return std::numeric_limits<double>::infinity();
    file.close();
    double best = std::numeric_limits<double>::max();
    double bestBrowser = best;
    for (int round = 0; round < 3; ++round) {
        QProcess browser;
        browser.setStandardOutputFile(QProcess::nullDevice());
        const double before = spent(RUSAGE_CHILDREN);
        browser.start(u"lynx"_s, {u"-dump"_s, u"-assume_charset=utf-8"_s, file.fileName()});
        if (!browser.waitForFinished(120'000) || browser.exitCode() != 0)
            return std::numeric_limits<double>::infinity();
        bestBrowser = std::min(bestBrowser, spent(RUSAGE_CHILDREN) - before);
        const double start = spent(RUSAGE_SELF);
        readPage(page);
        best = std::min(best, spent(RUSAGE_SELF) - start);
    }
    return best / bestBrowser;
}

double growthRatio()
{
    const QString large = makePage(largePage);
    const QString small = makePage(largePage / 10);
    return bench::ratio([&] { readPage(large); }, [&] { readPage(small); }, 15);
}

/// Rows of tables that nobody closes are the page that asks for looking ahead again and again: what is
/// remembered of a million rows costs memory, but a walk for each of them would give a hundred here.
double openRowsRatio()
{
    const auto page = [](qsizetype size) { return u"<BODY><TABLE>"_s + u"<TR><TD>a"_s.repeated(size / 9); };
    const QString large = page(largePage);
    const QString small = page(largePage / 10);
    return bench::ratio([&] { readPage(large); }, [&] { readPage(small); }, 9);
}

QString makeText(qsizetype size)
{
    Rnd rnd(5);
    QString text;
    while (text.size() < size)
        text += sentence(rnd);
    return text.first(size);
}

double uniqueWordsRatio()
{
    const QString text = makeText(1'000'000);
    Gate gate;
    LoopPump pump(gate);
    const PassStep step = [&](qsizetype) {
        if (pump.inputWaiting())
            pump.serve();
        return true;
    };
    return bench::ratio([&] { bench::keep(kernling::UniqueWords(text, 0, step)); },
                        [&] {
                            std::size_t sum = 0;
                            qsizetype start = 0;
                            const QStringView letters(text);
                            for (qsizetype i = 0; i < letters.size(); ++i) {
                                if (letters[i].isLetter())
                                    continue;
                                sum ^= qHash(letters.sliced(start, i - start));
                                start = i + 1;
                            }
                            bench::keep(sum);
                        },
                        31);
}

const bench::Row browser{"texts: a page of 9 MB against lynx, processor time", 0.2, browserRatio};
const bench::Row pageGrowth{"texts: a page of 9 MB against 0.9 MB", 12.0, growthRatio};
const bench::Row openRows{"texts: 9 MB of open rows against 0.9 MB", 20.0, openRowsRatio};
const bench::Row uniqueWords{"texts: words of 1,000,000 letters", 4.0, uniqueWordsRatio};

} // namespace
