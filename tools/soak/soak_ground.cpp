// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/soak_ground.h"

#include "platform/files.h"
#include "platform/text_encoding.h"
#include "support/file_bytes.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr auto session = u"[Morpheme1]\r\nType=Wortel\r\nLeft=50\r\nTop=60\r\nCaption=\"spiel\"\r\n"
                         u"[Morpheme2]\r\nType=Suffix\r\nLeft=9000\r\nTop=-5\r\nCaption=\"ung\"\r\n"
                         u"[NumObjects]\r\nObjCounter=2\r\n";

struct SoakFile
{
    const char16_t *name;
    const char16_t *text;
};
constexpr SoakFile startFiles[] = {
    {u"text\\Hauptbausteine.Txt", u"halt\r\nfahr\r\nspiel\r\nbahn\r\nball\r\nWald\r\n"},
    {u"facit\\Hauptbausteine.lex", u"Haus\r\nHaltung\r\nSpielung\r\nlaufen\r\nLäufer\r\nverfahr\r\n"},
    // As many as have a home, because the counters tell the whole lists.
    {u"affix\\prefix.afx",
     u"ab\r\nan\r\nauf\r\naus\r\nbe\r\nbei\r\nein\r\nent\r\ner\r\nge\r\nhin\r\nmiss\r\nmit\r\nnach\r\num\r\n"
     u"un\r\nver\r\nvor\r\nzer\r\nzu\r\n"},
    {u"affix\\suffix.afx", u"bar\r\nchen\r\ne\r\nel\r\nen\r\ner\r\nern\r\nhaft\r\nheit\r\nig\r\nin\r\nisch\r"
                           u"\nkeit\r\nlein\r\nlich\r\n"
                           u"los\r\nnis\r\nsam\r\nst\r\nung\r\n"},
    {u"text kurz lang\\kurzer Stammvokal.Txt", u"ball\r\nhalt\r\n"},
    {u"text kurz lang\\langer Stammvokal.Txt", u"bahn\r\nfahr\r\n"},
    {u"lextip.ini", u"[Tipp]\r\nhauptbausteine=Ein Tipp\r\n"},
    {u"vokaltip.ini", u"[Tipp]\r\nKurzvokal=Kurz\r\nLangvokal=Lang\r\n"},
};
/// What dialogs, drops and second starts find.
constexpr SoakFile otherFiles[] = {
    {u"eins.wlx", session},
    {u"zwei und drei.wlx", u"[NumObjects]\r\nObjCounter=0\r\n"},
    {u"kaputt.wlx", u"[Morpheme1]\r\nLeft=x\r\n[NumObjects]\r\nObjCounter=-7\r\n"},
    {u"text\\Meine.txt", u"Garten\r\nEi\r\n\r\nß\r\n"},
    {u"seite.html", u"<html><body><p>Die <b>Bahn</b> hält im Wald.</p></body></html>"},
    {u"brief.txt", u"Der Ball rollt. Die Haltung stimmt, sagt er, und verspielt alles.\r\n"},
};

} // namespace

QStringList SoakDialogs::files() const
{
    QStringList paths{folder_ + u"fehlt.wlx"_s, folder_ + u"bild.png"_s, folder_ + u"neu.wlx"_s};
    for (const SoakFile &file : otherFiles)
        paths << folder_ + QString::fromUtf16(file.name);
    return paths;
}

QString SoakDialogs::any()
{
    const QStringList paths = files();
    return paths.at(static_cast<qsizetype>(random_() % static_cast<unsigned>(paths.size())));
}

QStringList SoakDialogs::openFiles(const QString &, const QString &, const QString &, bool multiple)
{
    if (random_() % 4 == 0)
        return {};
    return multiple && random_() % 3 == 0 ? QStringList{any(), any()} : QStringList{any()};
}

QString SoakDialogs::saveFile(const QString &, const QString &, const QString &, const QString &suffix,
                              const SaveHints &)
{
    return random_() % 4 == 0 ? QString() : folder_ + u"neu."_s + suffix.section(u'.', -1);
}

std::optional<Colour> SoakDialogs::chooseColour(const QString &, Colour)
{
    return random_() % 2 == 0 ? std::nullopt : std::optional(static_cast<Colour>(random_() & 0xFFFFFF));
}

SoakGround::SoakGround(std::uint32_t seed)
    : AppFolder(storedPath(folder.path()) + u'\\')
    , dialogs(AppFolder, seed)
    , rnd(seed)
    , store(folder.filePath(u"settings.ini"_s))
    , options(store, AppFolder, log)
{
    const auto lay = [this](const SoakFile &file) {
        putBytes(nativePath(AppFolder + QString::fromUtf16(file.name)),
                 encodeText(QString::fromUtf16(file.text)));
    };
    for (const SoakFile &file : startFiles)
        lay(file);
    for (const SoakFile &file : otherFiles)
        lay(file);
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::green);
    picture.save(folder.filePath(u"bild.png"_s));
    store.SaveSettings(u"Settings"_s, {{u"UseBackup"_s, u"1"_s},
                                       {u"NumWortel"_s, u"8"_s},
                                       {u"NumAffixToFill"_s, u"1"_s},
                                       {u"MaxTriesToPlace"_s, u"1"_s},
                                       {u"ShowWelcomeMsg"_s, u"0"_s}});
}
