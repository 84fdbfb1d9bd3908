// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/text_source.h"

#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_desk.h"
#include "games/kernling/kernling_text.h"
#include "games/kernling/kernling_work_view.h"
#include "games/kernling/text_words.h"
#include "output/text_loading.h"
#include "platform/boxes.h"
#include "platform/fault_words.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/procedure.h"
#include "platform/runtime_error.h"
#include "platform/settings_store.h"
#include "platform/text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>

#include <algorithm>
#include <source_location>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "FrmKernling";
const QString section = u"Path"_s;
const QString folderKey = u"InternalOpenKernling"_s;
const QString filter =
    u"Text Dateien (*.txt)|*.txt|Rich Text Dateien (*.rtf;)|*.rtf;|Wörterbücher (*.lex;)|*.lex|Webseiten (*.html;*.htm;)|*.html;*.htm;"_s;
constexpr int wholeBar = 100;
constexpr double longestWord = 100000; ///< letters

} // namespace

void TextSource::Command5_Click()
{
    Procedure step{desk_.ground.log, "Command5_Click", form};
    QStringList chosen;
    step([&] {
        const QString folder = desk_.ground.store.GetSetting(section, folderKey, desk_.ground.AppFolder);
        chosen = desk_.ground.fileDialogs.openFiles(u"Text auswählen"_s, folder, filter, false);
    });
    if (chosen.isEmpty())
        return;
    const QString path = chosen.first();
    step([&] { desk_.ground.store.SaveSetting(section, folderKey, path.left(path.lastIndexOf(u'\\'))); });
    step([&] { load(path); });
}

void TextSource::load(const QString &path)
{
    if (textKindOf(path) == TextKind::Other) {
        desk_.tell(u"Hier passen nur Texte (*.txt), Rich-Text-Dateien (*.rtf), Wörterbücher (*.lex) und "
                   u"Webseiten (*.html)."_s);
        return;
    }
    PageText loaded;
    if (!readInto(loaded, path) || desk_.ground.gate.isClosing())
        return;
    if (!loaded.complaint.isEmpty())
        desk_.ground.boxes.plainBox(Boxes::Icon::Warning, u"Wortel - Fehler [Out Of Memory]"_s,
                                    loaded.complaint);
    if (loaded.text.trimmed().isEmpty()) {
        desk_.tell(u"Die Datei enthält keinen Text: "_s + GetOnlyFileName(path));
        return;
    }
    desk_.controls.RTF->replaceText(loaded.text);
    desk_.showTitle(loaded.title.isEmpty() ? GetOnlyFileName(path) : loaded.title);
    takeStemsFor(path);
    if (desk_.controls.Check8->isChecked())
        GetWordsFromText(
            static_cast<int>(std::min(Val(desk_.controls.cboWordLen->currentText()), longestWord)));
}

/// False if the file could not be read, or the reading was cancelled.
bool TextSource::readInto(PageText &text, const QString &path)
{
    const qint64 size = QFileInfo(nativePath(path)).size();
    if (size > largestFile) {
        desk_.tell(u"Die Datei ist zu groß. Ein Text darf höchstens 64 Megabyte haben."_s);
        return false;
    }
    try {
        Work work(desk_.ground, {WorkPlan::Bar | WorkPlan::Cancel, wholeBar}, &desk_.view);
        work.appear();
        text = loadText(path, [&](qsizetype done) {
            desk_.view.setValue(static_cast<int>(done * wholeBar / std::max<qint64>(1, size)));
            return work.goesOn();
        });
        return !work.isCancelled();
    } catch (const RuntimeError &error) {
        complain(path, error, std::source_location::current().line());
    }
    return false;
}

void TextSource::complain(const QString &path, const RuntimeError &error, unsigned line)
{
    desk_.ground.log.WriteLog(
        u"(Module) FrmKernling::Sub Command5_Click (Line: %1) %2"_s.arg(line).arg(error.description()));
    desk_.ground.boxes.plainBox(Boxes::Icon::Warning, u"Wortel - Fehler"_s,
                                u"Die Datei konnte nicht gelesen werden:\n"_s + GetOnlyFileName(path) +
                                    u"\n\n"_s + faultWords(error));
}

/// Which stems the text is judged by depends on what it is; a web page leaves them as they are.
void TextSource::takeStemsFor(const QString &path)
{
    switch (textKindOf(path)) {
    case TextKind::Dictionary: {
        const QString stems = stemListOfDictionary(path);
        desk_.Init2(stems);
        if (!IsTextFile(stems))
            desk_.tell(u"Zu diesem Wörterbuch gibt es keine Wortstamm-Liste:\n"_s + GetOnlyFileName(path));
        break;
    }
    case TextKind::Plain:
    case TextKind::Rich:
        desk_.Init2(desk_.ground.AppFolder + u"text kurz lang\\alle.txt"_s);
        break;
    case TextKind::Page:
    case TextKind::Other:
        break;
    }
}

void TextSource::GetWordsFromText(int wordLength)
{
    Procedure step{desk_.ground.log, "GetWordsFromText", form};
    const QString text = desk_.controls.RTF->text();
    std::optional<QStringList> words;
    step([&] {
        Work work(desk_.ground, {WorkPlan::Bar | WorkPlan::Cancel, wholeBar}, &desk_.view);
        words = kernling::GetWordsFromText(text, wordLength, [&](qsizetype done) {
            desk_.view.setValue(static_cast<int>(done * wholeBar / std::max<qsizetype>(1, text.size())));
            return work.goesOn();
        });
    });
    if (!words || desk_.ground.gate.isClosing())
        return;
    if (words->isEmpty()) {
        desk_.tell(wordLength > 0 ? u"Im Text steht kein Wort mit %1 Buchstaben."_s.arg(wordLength)
                                  : u"Im Text steht kein Wort."_s);
        return;
    }
    desk_.controls.RTF->setTextFont(u"Arial"_s);
    step([&] { desk_.controls.RTF->replaceText(kernling::asLines(*words)); });
}

void TextSource::Command4_Click()
{
    if (desk_.controls.RTF->isEmpty()) {
        desk_.tell(u"Der Text ist leer"_s);
        return;
    }
    desk_.controls.RTF->replaceText(QString());
    desk_.showTitle({});
}
