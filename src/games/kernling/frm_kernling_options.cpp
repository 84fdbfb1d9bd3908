// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/frm_kernling_options.h"

#include "persistence/settings/option_fields.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "widgets/guards.h"
#include "widgets/window_style.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmKernlingOptions";
constexpr auto ownRows = SettingsWindow::frmKernlingOptions;
constexpr int wishedWidth = 460;

} // namespace

frmKernlingOptions::frmKernlingOptions(Ground &ground, QWidget *parent)
    : QDialog(parent)
    , ground_(ground)
{
    setObjectName(QLatin1String(form));
    setWindowTitle(u"Kernling - Optionen"_s);
    window_style::dress(*this);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(12, 8, 12, 8);
    makeGroup("Frame2", u"Anzahl der Wörter"_s);
    makeGroup("Frame1", u"Spiel und Ergebnis"_s);
    Frame1_ = findChild<QGroupBox *>(u"Frame1"_s);
    for (const SettingRow &row : settingsTable())
        if (row.window == ownRows)
            addField(row);
    auto *scores = new QPushButton(u"Bestenliste zurücksetzen"_s, Frame1_);
    scores->setObjectName(u"Command11"_s);
    scores->setAutoDefault(false);
    connect(scores, &QPushButton::clicked, this, &frmKernlingOptions::Command11_Click);
    groups_.value(u"Frame1"_s)->addWidget(scores, 0, Qt::AlignLeft);
    whole->addStretch(1);
    makeFoot();
}

QVBoxLayout *frmKernlingOptions::makeGroup(const char *name, const QString &title)
{
    auto *group = new QGroupBox(title, this);
    group->setObjectName(QLatin1String(name));
    auto *lines = new QVBoxLayout(group);
    lines->setContentsMargins(10, 6, 10, 6);
    lines->setSpacing(4);
    layout()->addWidget(group);
    groups_.insert(QLatin1String(name), lines);
    return lines;
}

void frmKernlingOptions::addField(const SettingRow &row)
{
    QVBoxLayout *lines = groups_.value(QLatin1String(row.frame));
    QWidget *holder = lines->parentWidget();
    QWidget *field = makeOptionField(row, ground_.options, holder);
    if (!isTextSetting(row.type)) {
        lines->addWidget(field);
        return;
    }
    auto *caption = new QLabel(QString::fromUtf16(row.caption), holder);
    caption->setTextFormat(Qt::PlainText);
    caption->setWordWrap(true);
    caption->setBuddy(field);
    auto *line = new QHBoxLayout;
    line->addWidget(caption, 1);
    line->addWidget(field);
    lines->addLayout(line);
}

void frmKernlingOptions::makeFoot()
{
    QHBoxLayout *line = window_style::addFoot(*static_cast<QVBoxLayout *>(layout()));
    QPushButton *ok = window_style::addButton(*line, u"OK"_s, "cmdOK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &frmKernlingOptions::cmdOK_Click);
    connect(window_style::addButton(*line, u"Abbrechen"_s, "cmdCancel"), &QPushButton::clicked, this,
            &frmKernlingOptions::cmdCancel_Click);
}

bool frmKernlingOptions::edit()
{
    Procedure step{ground_.log, "edit", form};
    step([&] { ground_.options.GetSettings(ownRows); });
    step([&] { ground_.options.subSnapShot(ownRows); });
    bool confirmed = false;
    step([&] {
        if (const Gate::Passage open = ground_.gate.openBox()) {
            resize(wishedWidth, layout()->totalHeightForWidth(wishedWidth));
            confirmed = exec() == QDialog::Accepted;
        }
    });
    return confirmed && !ground_.gate.isClosing();
}

void frmKernlingOptions::cmdOK_Click()
{
    Procedure step{ground_.log, "cmdOK_Click", form};
    bool confirmed = false;
    step([&] {
        if (!ground_.options.IsChanged(ownRows))
            return;
        confirmed = ground_.boxes.agrees(u"Willst du die Änderungen bestätigen?"_s, u"Wortel - Bestätigen"_s);
    });
    step([&] {
        if (!confirmed)
            ground_.options.GetSettings(ownRows);
        else
            apply();
    });
    if (isVisible())
        done(confirmed ? QDialog::Accepted : QDialog::Rejected);
}

// What was not confirmed is not in force.
void frmKernlingOptions::cmdCancel_Click()
{
    ground_.options.GetSettings(ownRows);
    done(QDialog::Rejected);
}

bool frmKernlingOptions::apply()
{
    bool saved = false;
    {
        const Hourglass glass;
        saved = ground_.options.ApplySettings(ownRows);
    }
    if (!saved)
        ground_.boxes.plainBox(
            Boxes::Icon::Warning, product::faultTitle,
            u"Die Einstellungen konnten nicht gespeichert werden.\n\nSie gelten bis zum Ende des Programms."_s);
    return saved;
}

void frmKernlingOptions::Command11_Click() { emit resetScores(); }
