// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <algorithm>
#include <array>

/// The literal tables of the nonsense words. All entries that whole texts are compared with stand in
/// capitals, and the order of each table is the order in which it is searched.
namespace nonsense {

template <std::size_t size> using Table = std::array<QStringView, size>;

template <std::size_t size> bool isIn(const Table<size> &table, QStringView capitals)
{
    return std::find(table.begin(), table.end(), capitals) != table.end();
}

/// The stem list that makes nouns only.
inline constexpr char16_t nounListName[] = u"UNG HEIT KEIT SCHAFT NIS TUM";

/// The suffixes that list allows.
inline constexpr Table<15> NounSuffixList{u"UNG",       u"IGUNG",    u"LICHUNG", u"HEIT",    u"ENHEIT",
                                          u"IGKEIT",    u"LICHKEIT", u"BARKEIT", u"SAMKEIT", u"HAFTIGKEIT",
                                          u"LOSIGKEIT", u"SCHAFT",   u"NIS",     u"TUM",     u"EREI"};

/// The suffixes that all other lists leave out.
inline constexpr Table<2> bareEndings{u"S", u"ER"};

/// The bare suffixes that make a noun under the option.
inline constexpr Table<7> CapSuffixList{u"UNG", u"HEIT", u"KEIT", u"SCHAFT", u"NIS", u"TUM", u"EREI"};

/// The endings that make a noun of a whole word. "LOSIGKEIT" is left out on purpose.
inline constexpr Table<14> CapEndingList{u"HAFTIGKEIT", u"UNG",    u"IGUNG",    u"LICHUNG", u"HEIT",
                                         u"ENHEIT",     u"IGKEIT", u"LICHKEIT", u"BARKEIT", u"SAMKEIT",
                                         u"SCHAFT",     u"NIS",    u"TUM",      u"EREI"};

/// The noun endings that save a word in "GE".
inline constexpr Table<3> geNounEndings{u"BARKEIT", u"LICHKEIT", u"ENHEIT"};

/// Letter clusters that no word may hold; "RATT" stands twice. The last entry belongs to the sweep over whole
/// words only.
inline constexpr Table<30> BadClusterSweepList{
    u"SSST",  u"LASST", u"LASSST", u"SSCHAFT", u"SSAM",   u"TTT",    u"TTUM",  u"RATT",  u"LLICH", u"LLOS",
    u"NNIS",  u"BBAR",  u"KK",     u"II",      u"RATT",   u"DT",     u"ßS",    u"ZS",    u"EE",    u"HH",
    u"ZEITT", u"DEUTT", u"BETT",   u"TRETT",   u"LLLICH", u"SAUSST", u"BRÜTT", u"LÖSST", u"NN",    u"SST"};
inline constexpr std::size_t badClusterCount = BadClusterSweepList.size() - 1;

/// What a drawn suffix is led in or replaced by. Only the first entries are ever drawn, so that "samkeit" and
/// "lichung" do not come from here: required.
struct Draw
{
    Table<4> choices;
    int drawn; ///< entries that the draw reaches
};
inline constexpr Draw keitLinks{{u"ig", u"lich", u"bar", u"sam"}, 3};
inline constexpr Draw ungLinks{{u"ig", u"lich"}, 1};
inline constexpr Draw igkeitChoices{{u"lichkeit", u"barkeit", u"samkeit"}, 2};

} // namespace nonsense
