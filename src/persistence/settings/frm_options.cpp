// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/settings/frm_options.h"

#include "language/list_loader.h"
#include "persistence/settings/options_view.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/settings_store.h"
#include "platform/text.h"
#include "widgets/file_drop.h"
#include "widgets/guards.h"
#include "widgets/window_style.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize wishedSize{880, 540};
constexpr int yesNo = 4;
constexpr int answerNo = 1;

} // namespace

frmOptions::frmOptions(Ground &ground, QWidget *parent)
    : QDialog(parent)
    , ground_(ground)
    , view_(new OptionsView(ground.options, this))
{
    setObjectName(u"frmOptions"_s);
    setWindowTitle(u"Optionen"_s);
    // No close item in the title: only the two buttons end the window.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(view_);
    connectButtons();
    connect(new FileDrop(view_->field(Setting::WortelFile)), &FileDrop::dropped, this,
            &frmOptions::Text2_OLEDragDrop);
}

void frmOptions::connectButtons()
{
    const auto onClick = [this](const char *name, auto slot) {
        connect(view_->button(QLatin1String(name)), &QPushButton::clicked, this, slot);
    };
    onClick("cmdOK", &frmOptions::cmdOK_Click);
    onClick("cmdCancel", &frmOptions::cmdCancel_Click);
    onClick("Command2", &frmOptions::Command2_Click);
    onClick("Command3", &frmOptions::Command3_Click);
    onClick("Command4", &frmOptions::Command4_Click);
    onClick("Command5", &frmOptions::Command5_Click);
    onClick("Command6", &frmOptions::Command6_Click);
    onClick("Command1", [this] { emit resetScores(Scores::Klotar); });
    onClick("Command10", [this] { emit resetScores(Scores::Tonarin); });
    onClick("Command9", [this] { emit resetScores(Scores::Paarlon); });
    onClick("Command7", &frmOptions::registerFileType);
    onClick("Command8", &frmOptions::removeFileType);
}

void frmOptions::edit()
{
    Procedure step{ground_.log, "Command6_Click", "frmMain"};
    step([&] { ground_.options.GetSettings(); });
    step([&] { ground_.options.subSnapShot(); });
    step([&] {
        if (const Gate::Passage open = ground_.gate.openBox()) {
            window_style::fitToScreen(*this, wishedSize);
            exec();
        }
    });
    step([&] { ground_.pump.yield(); });
}

void frmOptions::ShowProperFrame(const QString &name) { view_->ShowProperFrame(name); }

void frmOptions::cmdOK_Click()
{
    Procedure step{ground_.log, "cmdOK_Click", "frmOptions"};
    int answer = answerNo;
    // A list that the next start could not load; one that was stored before is the start's affair.
    const QString list = ground_.options.text(Setting::WortelFile);
    bool whole = true;
    step([&] { whole = list == ground_.options.stored(Setting::WortelFile) || listIsWhole(list); });
    if (!whole)
        return;
    step([&] {
        if (ground_.options.IsChanged())
            answer = ground_.boxes.ShowMBox(
                u"Es wurden Änderungen gemacht.\n\nWillst du die Änderungen bestätigen?"_s, true, yesNo,
                product::name + u" - Bestätigen"_s, BoxStyle::Confirm);
    });
    step([&] {
        if (answer != answerNo) {
            apply();
            return;
        }
        ground_.options.GetSettings();
        ground_.pump.yield();
    });
    step([&] { done(QDialog::Accepted); });
}

// Only hides: the edits stay in force until the settings are loaded again.
void frmOptions::cmdCancel_Click() { done(QDialog::Rejected); }

void frmOptions::apply()
{
    bool saved = false;
    {
        const Hourglass glass;
        saved = ground_.options.ApplySettings();
        ground_.pump.yield();
    }
    if (!saved)
        ground_.boxes.plainBox(
            Boxes::Icon::Warning, product::faultTitle,
            u"Die Einstellungen konnten nicht gespeichert werden.\n\nSie gelten bis zum Ende des Programms."_s);
}

void frmOptions::Command2_Click()
{
    ground_.boxes.plainBox(Boxes::Icon::Information, product::name,
                           u"Diese Funktion ist noch nicht ins Programm eingebaut"_s);
}

void frmOptions::Command3_Click()
{
    const QStringList chosen =
        ground_.fileDialogs.openFiles(u"Choose Initial Wortel-File"_s, ground_.AppFolder + u"text\\"_s,
                                      u"Text Dateien (*.txt)|*.txt"_s, false);
    if (!chosen.isEmpty())
        takeList(chosen.first());
}

/// What is missing is told at once, though only "OK" refuses it.
void frmOptions::takeList(const QString &path)
{
    ground_.options.setText(Setting::WortelFile, path);
    listIsWhole(path);
}

/// True as well for a blank field, which gets the usual list. Tells what is missing.
bool frmOptions::listIsWhole(const QString &path)
{
    const auto missing = Trim(path).isEmpty() ? std::nullopt : ListLoader::missingOf(path);
    if (!missing)
        return true;
    const QString fault =
        *missing == path
            ? u"Diese Wortel-Liste gibt es nicht:\n\n%1\n\nWähle eine andere, oder leere das Feld: Dann "
              u"nimmt "
              "Wortel-Meister seine eigene."_s
            : u"Zu dieser Wortel-Liste gehört ein Wörterbuch, und das fehlt:\n\n%1\n\nOhne Wörterbuch kann "
              "Wortel-Meister nicht mit ihr starten."_s;
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::name, fault.arg(*missing));
    return false;
}

void frmOptions::Command4_Click()
{
    Procedure step{ground_.log, "Command4_Click", "frmOptions"};
    QStringList chosen;
    step([&] {
        const QString folder = ground_.store.GetSetting(u"Path"_s, u"RestoreBGPath"_s, ground_.AppFolder);
        chosen = ground_.fileDialogs.openFiles(
            u"Hintergrund für Wortel wählen"_s, folder,
            u"Bild-Dateien (*.jpg, *.gif, *.bmp)|*.jpg;*.jpeg;*.gif;*.bmp;"_s, false);
    });
    if (chosen.isEmpty())
        return;
    const QString path = chosen.first();
    step([&] {
        ground_.store.SaveSetting(u"Path"_s, u"RestoreBGPath"_s, path.left(path.lastIndexOf(u'\\')));
    });
    step([&] { ground_.options.setText(Setting::BackgroundPicture, path); });
}

void frmOptions::Command5_Click() { ground_.options.setText(Setting::BackgroundPicture, {}); }

void frmOptions::Command6_Click() { ground_.options.setText(Setting::WortelFile, {}); }

void frmOptions::Text2_OLEDragDrop(const QString &path)
{
    if (!isVisible())
        return;
    const QString ending = path.mid(path.lastIndexOf(u'.') + 1).right(3);
    if (UCase(ending) == u"TXT"_s)
        takeList(path);
    else
        ground_.boxes.plainBox(Boxes::Icon::Warning, product::name + u" - Fehler: Format"_s,
                               u"Hier passt nur eine Text-Datei (*.txt)."_s);
}

void frmOptions::closeEvent(QCloseEvent *event) { event->ignore(); }
