// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Which sound says the vowel of a stem: a fixed table, looked up from the top, where the first row that has
/// the stem wins. Rows 1 to 8 are short vowels, 9 to 16 long ones, 17 to 20 diphthongs. Odd places ("quäl"
/// with the long u, "mehr" twice in its row) have always been so.
namespace vowel_stems {

struct Row
{
    const char16_t *file;  ///< in the folder of the vowel sounds, without ".wav"
    const char16_t *stems; ///< in lower case, a blank between two
};

// clang-format off
inline constexpr Row rows[] = {
    {u"ka",
     u"farb hand land sand stand schaff fang gang hang klang mach krach back hack knack pack zack dank "
     u"rank schrank krank trank tank park stark fall schall knall prall stamm mann spann tarn warn klapp "
     u"schnapp knarr wachs fass hass lass blass pass saft acht halt schalt wart hast salz walz pflanz "
     u"platz kratz satz"},
    {u"ke",
     u"gelb erb sterb werb meld end blend send wend treff werf brech frech mensch eck deck leck fleck "
     u"schmeck dreck schreck streck steck weck welk schenk lenk senk merk stell well schwell hemm klemm "
     u"schwemm kenn nenn renn brenn trenn lern schlepp herr sperr zerr brems ess kess mess fress press "
     u"heft gelt kennt west fett rett wett schmelz grenz herz schmerz netz setz"},
    {u"ki",
     u"bild wild bind find kind blind wind kniff griff hilf impf kling bring dring spring sing misch "
     u"glitsch schick blick klick nick knick strick blink trink sink wink wirk grimm stimm schwimm kipp "
     u"irr klirr wirr knips miss wiss gift stift dicht licht richt sicht wicht wirt bitt schnitt quitt "
     u"filz hitz blitz spritz sitz witz"},
    {u"ko",
     u"lord hoff klopf tropf folg sorg knoch forsch lock block stock roll soll woll komm sonn zorn kost "
     u"trotz"},
    {u"ku",
     u"schuld kund grund muff sumpf busch guck schluck ruck druck zuck funk trunk dumm brumm turn strupp "
     u"knurr fluss schluss muss wuss frucht dunst durst lust kurz sturz schmutz nutz putz"},
    {u"kä",
     u"schänd ständ häng tränk stärk fäll männ häss läss kräft mächt prächt läst ängst gänz glänz schätz "
     u"sätz"},
    {u"kö",
     u"nörd wört köst plötz"},
    {u"kü",
     u"bünd künd münd gründ würd dürf glück rück drück stück füll hüll brüll flüss künft flücht tücht "
     u"pünkt gült günst künst rüst brüst kürz stürz würz schütz nütz stütz"},
    {u"la",
     u"gab hab grab trab bad lad schlaf traf jag lag schlag klag frag trag sag tag wag sah mal mahl prahl "
     u"strahl wahl zahl kam kram lahm nahm plan ahn bahn mahn wahn zahn spar war fahr nahr wahr las blas "
     u"glas aß maß fraß saß bat rat brat trat tat art"},
    {u"le",
     u"geb heb leb kleb red feg leg pfleg reg weg geh fleh dreh seh steh fehl mehl stehl crem nehm dehn "
     u"lehn sehn ehr kehr lehr mehr wehr zehr les bet tret"},
    {u"li",
     u"schieb lieb blieb rieb schrieb trieb sieb nied fried lief schlief rief tief bieg lieg flieg krieg "
     u"sieg stieg wieg schwieg riech kriech lieh flieh sieh zieh fiel spiel ziem dien schien gier frier "
     u"schwier zier lies blies ries wies gieß schieß ließ fließ schließ spieß stieß biet miet riet"},
    {u"lo",
     u"bog flog zog roh droh sohl wohl hol lohn wohn schon ton bohr los groß stoß bot trost"},
    {u"lu",
     u"ruf klug trug such ruh quäl fuhr ruß blut mut"},
    {u"lä",
     u"schäd träg säg täg wähl zähl däm näm lähm ähn klär wär fähr jähr nähr währ bläs mäß zärt"},
    {u"lö",
     u"töd höf mög fröh höhl öl dröhn stöhn wöhn schön hör stör lös größ nöt töt tröst"},
    {u"lü",
     u"üb trüb süd prüf lüg züg blüh glüh fühl kühl wühl führ rühr müß grüß süß brüt"},
    {u"lei",
     u"bleib reib schreib treib weib scheid leid kleid schneid feind pfeif kneif greif feig neig steig "
     u"schweig zeig gleich reich weich leih reih weih frei eitel eil heil teil heim ein schein klein mein "
     u"gemein pein rein wein eis reis kreis preis weis beiß heiß fleiß schmeiß reiß weiß leit gleit reit "
     u"breit seit zeit geist leist heiz"},
    {u"lau",
     u"glaub raub staub kauf lauf brauch staun haus braus graus saus laut bau klau"},
    {u"läu",
     u"gläub träum häus gräu"},
    {u"leu",
     u"freund freud zeug heul deut neu kreuz"},
};
// clang-format on

/// The row that has the stem, whatever its case; nullptr for a word that is none of them. The whole word is
/// compared: "farb" is found, "farbe" is not.
const Row *find(const QString &word);

/// Where a vowel sound lies, `file` as in a row: a path in stored form in the program's folder.
QString soundFile(const QString &appFolder, const QString &file);

} // namespace vowel_stems
