// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/frm_save_as_web.h"

#include "board/canvas/background_picture.h"
#include "output/web/web_page.h"
#include "output/web/web_view.h"
#include "output/web/web_wishes.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/fault_words.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/text.h"
#include "widgets/file_drop.h"
#include "widgets/guards.h"
#include "widgets/window_style.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "FrmSaveAsWeb";
constexpr QSize wishedSize{800, 392};

/// The folder of a stored path, with its backslash.
QString folderOf(const QString &path) { return path.left(path.lastIndexOf(u'\\') + 1); }

bool hasFolder(const QString &path) { return path.contains(u'\\') || path.contains(u'/'); }

} // namespace

FrmSaveAsWeb::FrmSaveAsWeb(Ground &ground, const QString &session, const QString &pageName, QWidget *parent)
    : QDialog(parent)
    , ground_(ground)
    , view_(new WebView(this))
{
    setObjectName(u"FrmSaveAsWeb"_s);
    setWindowTitle(u"Sitzung speichern als Webseite"_s);
    window_style::dress(*this);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(view_);
    web_wishes::read(ground.store, *view_);
    view_->TxtInfile->setText(session);
    if (!session.isEmpty())
        view_->txtoutfile->setText(folderOf(session) + pageName);
    connectButtons();
    connectSwatches();
    connectDrops();
}

void FrmSaveAsWeb::connectButtons()
{
    const auto onClick = [this](QPushButton *button, void (FrmSaveAsWeb::*slot)()) {
        connect(button, &QPushButton::clicked, this, slot);
    };
    onClick(view_->cmdMakeWebPage, &FrmSaveAsWeb::cmdMakeWebPage_Click);
    onClick(view_->cmdViewWebpage, &FrmSaveAsWeb::cmdViewWebpage_Click);
    onClick(view_->cmdClose, &FrmSaveAsWeb::cmdClose_Click);
    onClick(view_->Command1, &FrmSaveAsWeb::Command1_Click);
    onClick(view_->Command5, &FrmSaveAsWeb::Command5_Click);
}

void FrmSaveAsWeb::connectSwatches()
{
    for (ColourSwatch *swatch : {view_->Picture1, view_->Picture2, view_->Picture3})
        connect(swatch, &ColourSwatch::clicked, this, [this, swatch] {
            if (const auto chosen = ground_.fileDialogs.chooseColour(swatch->toolTip(), swatch->colour()))
                swatch->setColour(*chosen);
        });
}

void FrmSaveAsWeb::connectDrops()
{
    const auto onDrop = [this](QLineEdit *field, bool (FrmSaveAsWeb::*check)(const QString &)) {
        connect(new FileDrop(field), &FileDrop::dropped, this, [this, field, check](const QString &path) {
            if (isVisible() && (this->*check)(path))
                field->setText(path);
        });
    };
    onDrop(view_->TxtInfile, &FrmSaveAsWeb::checkSession);
    onDrop(view_->txtoutfile, &FrmSaveAsWeb::checkPageName);
    onDrop(view_->txtbgpic, &FrmSaveAsWeb::checkPicture);
}

void FrmSaveAsWeb::edit()
{
    if (const Gate::Passage open = ground_.gate.openBox()) {
        window_style::fitToScreen(*this, wishedSize);
        exec();
    }
}

void FrmSaveAsWeb::cmdClose_Click()
{
    Procedure step{ground_.log, "cmdClose_Click", form};
    if (!ground_.gate.isClosing())
        step([&] { web_wishes::save(ground_.store, *view_); });
    done(QDialog::Rejected);
}

// Checks ----------------------------------------------------------------------------------------------------

/// False, for a check that ends with it.
bool FrmSaveAsWeb::warn(const QString &title, const QString &text)
{
    ground_.boxes.plainBox(Boxes::Icon::Warning, title, text);
    return false;
}

bool FrmSaveAsWeb::checkSession(const QString &path)
{
    const QString ending = BackgroundPicture::extension(path);
    return ending == u"WLX"_s ||
           warn(u"Wortel - Unsupported File Format"_s,
                u"Only Wortel-Sitzungen (.WLX) are supported\nExtension of file is "_s + ending);
}

bool FrmSaveAsWeb::checkPageName(const QString &path)
{
    return UCase(path).contains(u".HTM"_s) || warn(u"Wortel - Unsupported File Format"_s,
                                                   u"Nur Weibseiten (.HTML oder .HTM) werden unterstützt"_s);
}

bool FrmSaveAsWeb::checkPicture(const QString &path)
{
    return BackgroundPicture::isPicture(path) ||
           warn(product::name + u" - Fehler: Format"_s,
                u"Bitte ein Bild im Format Gif, JPG oder BMP !\nDieses Bild hat das Format: "_s +
                    BackgroundPicture::extension(path));
}

bool FrmSaveAsWeb::isReadyToMake()
{
    const QString session = sessionPath();
    if (!UCase(session).contains(u".WLX"_s) || !IsTextFile(session))
        return warn(u"Wortel - Missing .WLX-file"_s, u"Please enter the name of a valid Wortel-file!"_s);
    const QString page = pagePath();
    if (page.isEmpty())
        return warn(u"Wortel - Missing outfile"_s,
                    u"Please enter the name of the webpage you want to create (.html) !"_s);
    if (!checkPageName(page))
        return false;
    const QString picture = Trim(view_->txtbgpic->text());
    if (view_->chkAddBGPic->isChecked() && !picture.isEmpty() && !checkPicture(picture))
        return false;
    const QFileInfo old(nativePath(page));
    if (!old.exists())
        return true;
    // Both names may hold both endings: the page must not take the place of what it is made of.
    for (const QString &source : {session, picture})
        if (!source.isEmpty() && old.canonicalFilePath() == QFileInfo(nativePath(source)).canonicalFilePath())
            return warn(product::faultTitle,
                        u"Die Webseite braucht einen anderen Namen als die Sitzung und das Bild."_s);
    return ground_.boxes.plainBox(Boxes::Icon::Question, product::name + u"- Bestätigen"_s,
                                  u"Dieser Vorgang wird die vorhandene Datei überschreiben! Wollen Sie "
                                  "trotzdem fortfahren?"_s,
                                  Boxes::Buttons::OkCancel) == Boxes::Answer::Ok;
}

// Making ----------------------------------------------------------------------------------------------------

QString FrmSaveAsWeb::sessionPath() const { return Trim(view_->TxtInfile->text()); }

/// A name without a folder lies beside the session.
QString FrmSaveAsWeb::pagePath() const
{
    const QString typed = Trim(view_->txtoutfile->text());
    return typed.isEmpty() || hasFolder(typed) ? typed : folderOf(storedPath(sessionPath())) + typed;
}

WebPage FrmSaveAsWeb::wishes() const
{
    const auto firstChecked = [](const auto &buttons) {
        for (std::size_t i = 0; i < buttons.size(); ++i)
            if (buttons[i]->isChecked())
                return static_cast<int>(i);
        return 0;
    };
    WebPage page;
    page.session = sessionPath();
    page.file = pagePath();
    page.title = view_->TextWebTitle->text();
    if (view_->ChkAddDate->isChecked())
        page.date = ground_.clock.now().date();
    page.addPicture = view_->chkAddBGPic->isChecked();
    page.picture = Trim(view_->txtbgpic->text());
    page.shortName = view_->ChkStripExt->isChecked();
    page.pictureMoves = view_->ChkMovePic->isChecked();
    page.pictureLeft = view_->LimitedPosX->text().toInt();
    page.pictureTop = view_->LimitedPosY->text().toInt();
    page.tilesMove = view_->ChkMoveable->isChecked();
    page.framed = view_->ChkUseBorder->isChecked();
    page.letterSteps = firstChecked(view_->OptFontSize);
    page.ownColours = firstChecked(view_->Option2) == 1;
    page.back = view_->Picture1->colour();
    page.tileBack = view_->Picture2->colour();
    page.text = view_->Picture3->colour();
    page.script = view_->TxtMainJava->toPlainText().toLatin1();
    return page;
}

void FrmSaveAsWeb::cmdMakeWebPage_Click()
{
    Procedure step{ground_.log, "cmdMakeWebPage_Click", form};
    step([&] {
        if (isReadyToMake())
            makePage();
    });
}

/// What a page needs beside it, or nothing: a picture by its bare name is looked for in the page's folder.
static QString missingBeside(const WebPage &page)
{
    const QString name = QFileInfo(nativePath(page.picture)).fileName();
    if (!page.addPicture || !page.shortName || name.isEmpty() ||
        IsTextFile(folderOf(storedPath(page.file)) + name))
        return {};
    return u"\n\nDas Hintergrundbild erscheint erst, wenn es im selben Ordner liegt: "_s + name;
}

void FrmSaveAsWeb::makePage()
{
    const WebPage page = wishes();
    Procedure step{ground_.log, "MakeWebpage", form};
    step.setErrorPrefix(u"Module:modBQVToWeb::Sub MakeWebpage "_s);
    QString reason;
    const bool made = step([&] {
        const Hourglass hourglass;
        try {
            MakeWebpage(page);
        } catch (const RuntimeError &error) {
            reason = faultWords(error);
            throw;
        }
    });
    if (made)
        ground_.boxes.plainBox(Boxes::Icon::Information, product::name,
                               u"Die Datei wurde gespeichert als "_s + page.file + missingBeside(page));
    else
        ground_.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle,
                               u"Die Webseite konnte nicht gespeichert werden als "_s + page.file +
                                   u"\n\n"_s + reason);
}

void FrmSaveAsWeb::cmdViewWebpage_Click()
{
    Procedure step{ground_.log, "cmdViewWebpage_Click", form};
    step([&] {
        const QString page = pagePath();
        if (!IsTextFile(page))
            warn(u"Wortel - No Webpage to view"_s, u"Please translate a Wortel Sitzung first (.wxl) !"_s);
        else if (!QDesktopServices::openUrl(
                     QUrl::fromLocalFile(QFileInfo(nativePath(page)).absoluteFilePath())))
            warn(product::faultTitle, u"Es wurde kein Programm gefunden, das Webseiten zeigt."_s);
    });
}

void FrmSaveAsWeb::Command1_Click()
{
    Procedure step{ground_.log, "Command1_Click", form};
    QString chosen;
    step([&] {
        const QString present = pagePath();
        const QString folder = hasFolder(present) ? folderOf(present) : ground_.AppFolder;
        chosen = ground_.fileDialogs.saveFile(product::name + u" - Webseite öffnen"_s, folder,
                                              u"Webpage(*.html)|*.html"_s, u".html"_s,
                                              {GetOnlyFileName(present), {}});
    });
    if (!chosen.isEmpty())
        view_->txtoutfile->setText(chosen);
}

void FrmSaveAsWeb::Command5_Click()
{
    Procedure step{ground_.log, "Command5_Click", form};
    QStringList chosen;
    step([&] {
        const QString present = view_->txtbgpic->text();
        const QString folder = hasFolder(present) ? folderOf(present) : ground_.AppFolder;
        chosen =
            ground_.fileDialogs.openFiles(product::name + u" - Bild wählen"_s, folder,
                                          u"GIF-Pictures(*.gif)|*.gif|JPG-Pictures(*.jpg)|*.jpg"_s, false);
    });
    if (!chosen.isEmpty())
        view_->txtbgpic->setText(chosen.first());
}
