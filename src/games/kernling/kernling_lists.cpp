// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/kernling_lists.h"

namespace {

// What stands in front of German stems and behind them. Longer forms of an ending stand beside it, because a
// child marks what it sees. A prefix is asked for first, so that "los" and "in" are suffixes alone.
constexpr const char16_t *prefixes[] = {
    u"ab",    u"an",     u"auf",    u"aus",    u"be",    u"bei",    u"da",    u"dar", u"durch",  u"ein",
    u"emp",   u"ent",    u"er",     u"fort",   u"ge",    u"gegen",  u"her",   u"hin", u"hinter", u"miss",
    u"mit",   u"nach",   u"nieder", u"über",   u"um",    u"un",     u"unter", u"ur",  u"ver",    u"vor",
    u"voran", u"vorbei", u"weg",    u"weiter", u"wider", u"wieder", u"zer",   u"zu",  u"zurück", u"zusammen"};

constexpr const char16_t *suffixes[] = {
    u"bar",  u"barkeit",   u"chen",   u"e",    u"el",    u"eln",  u"en",   u"end",     u"er",         u"erei",
    u"erin", u"erisch",    u"erlich", u"ern",  u"es",    u"est",  u"et",   u"haft",    u"haftigkeit", u"heit",
    u"ig",   u"igkeit",    u"in",     u"ing",  u"isch",  u"keit", u"lein", u"lich",    u"lichkeit",   u"ling",
    u"los",  u"losigkeit", u"n",      u"nis",  u"nisse", u"s",    u"sam",  u"samkeit", u"schaft",     u"st",
    u"t",    u"te",        u"ten",    u"test", u"tet",   u"tum",  u"ung",  u"ungen"};

template <std::size_t size> void fill(WordStore &store, const char16_t *const (&words)[size])
{
    for (const char16_t *word : words)
        store.add(QString::fromUtf16(word));
}

} // namespace

KernlingLists::KernlingLists()
{
    fill(prefixlist, prefixes);
    fill(suffixlist, suffixes);
}
