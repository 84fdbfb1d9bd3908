// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window_file_dialogs.h"

#include "platform/file_places.h"
#include "platform/files.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// The folder to start in: the one told, or the nearest one above it that exists, or the user's own.
QString startFolder(const QString &stored)
{
    const QString native = nativePath(stored);
    if (native.isEmpty())
        return QDir::homePath();
    QString folder = QFileInfo(native).absoluteFilePath();
    while (!QFileInfo(folder).isDir()) {
        const QString above = QFileInfo(folder).path();
        if (above == folder)
            return QDir::homePath();
        folder = above;
    }
    return folder;
}

bool mayReplace(QWidget *parent, const QString &title, const QString &path)
{
    QMessageBox box(QMessageBox::Warning, title,
                    QFileInfo(path).fileName() + u" gibt es schon.\nSoll die Datei ersetzt werden?"_s,
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton *replace = box.addButton(u"Ersetzen"_s, QMessageBox::AcceptRole);
    QPushButton *keep = box.addButton(u"Abbrechen"_s, QMessageBox::RejectRole);
    box.setDefaultButton(keep);
    box.exec();
    return box.clickedButton() == replace;
}

/// What a path cannot be used for, as a sentence for the user, or nothing.
QString troubleWith(const QString &path)
{
    constexpr qsizetype longestName = 255; // bytes
    if (path.contains(u'\\'))
        return u"Der Name der Datei und ihres Ordners darf keinen umgekehrten Schrägstrich (\\) enthalten."_s;
    if (QFile::encodeName(QFileInfo(path).fileName()).size() > longestName)
        return u"Der Name der Datei ist zu lang."_s;
    return {};
}

/// Sizes and types would be told in the language of the system, and the list be wider than the window.
void showNameAndDate(QHeaderView &header)
{
    constexpr int date = 3;
    for (int column = 1; column < header.count(); ++column) {
        header.setSectionHidden(column, column != date);
        header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
    }
    header.setStretchLastSection(false);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
}

/// The toolkit's dialog, in which nothing can be done but to choose: the common ways of all of them.
class FileWindow : public QFileDialog
{
    static constexpr int placesWidth = 130; ///< pixels, for the longest of the usual names

public:
    FileWindow(AcceptMode mode, const QString &title, const QString &folder, const QString &filter,
               const QString &programFolder)
        : QFileDialog(QApplication::activeWindow())
    {
        setAcceptMode(mode); // first: it makes the buttons anew, and their words would be lost
        setOptions(DontUseNativeDialog | HideNameFilterDetails | ReadOnly | DontConfirmOverwrite);
        setWindowTitle(title);
        setDirectory(startFolder(folder));
        setNameFilters(WindowFileDialogs::nameFilters(filter));
        setLabelText(LookIn, u"Suchen in:"_s);
        setLabelText(FileName, u"Dateiname:"_s);
        setLabelText(FileType, u"Dateityp:"_s);
        setLabelText(Reject, u"Abbrechen"_s);
        QList<QUrl> places;
        for (const QString &place : filePlaces(programFolder))
            places.append(QUrl::fromLocalFile(place));
        setSidebarUrls(places);
        if (auto *splitter = findChild<QSplitter *>(u"splitter"_s))
            splitter->setSizes({placesWidth, width() - placesWidth});
        if (auto *header = findChild<QHeaderView *>())
            showNameAndDate(*header);
        const auto views = findChildren<QAbstractItemView *>();
        for (QAbstractItemView *view : views)
            view->setDragEnabled(false); // a file manager would take it for a move
        offerNewFolder();
    }

    /// The file (native) that may be replaced without a question.
    void setOpenFile(const QString &path) { open_ = path; }

    void accept() override
    {
        const QStringList chosen = selectedFiles();
        for (const QString &path : chosen)
            if (const QString trouble = troubleWith(path); !trouble.isEmpty())
                return tell(trouble);
        const QString file = chosen.value(0);
        if (acceptMode() == AcceptOpen || isFree(file) || mayReplace(this, windowTitle(), file))
            return QFileDialog::accept();
        // The mark in the list would count for more than the name that is typed next.
        if (auto *list = findChild<QListView *>(u"listView"_s))
            list->clearSelection();
    }

private:
    /// True also for a folder, which is entered. The stored form goes to the file that has this name in any
    /// case, so that is the one to ask about.
    bool isFree(const QString &path) const
    {
        const QFileInfo old(nativePath(path));
        return !old.exists() || old.isDir() || (!open_.isEmpty() && old == QFileInfo(open_));
    }

    void tell(const QString &trouble)
    {
        QMessageBox box(QMessageBox::Warning, windowTitle(), trouble, QMessageBox::Ok, this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }

    /// The toolkit's own way needs a list in which files can be renamed.
    void offerNewFolder()
    {
        auto *button = findChild<QToolButton *>(u"newFolderButton"_s);
        auto *entry = findChild<QAction *>(u"qt_new_folder_action"_s);
        auto *folders = findChild<QFileSystemModel *>();
        if (button == nullptr || entry == nullptr || folders == nullptr)
            return;
        button->setVisible(acceptMode() == AcceptSave);
        const auto enable = [button] { button->setEnabled(true); };
        enable();
        connect(folders, &QFileSystemModel::rootPathChanged, button, enable, Qt::QueuedConnection);
        disconnect(button, nullptr, this, nullptr);
        disconnect(entry, nullptr, this, nullptr);
        connect(button, &QToolButton::clicked, this, &FileWindow::makeFolder);
        connect(entry, &QAction::triggered, this, &FileWindow::makeFolder);
    }

    void makeFolder()
    {
        const QString name =
            QInputDialog::getText(this, windowTitle(), u"Name des neuen Ordners:"_s).trimmed();
        if (name.isEmpty())
            return;
        const QString folder = directory().filePath(name);
        if (!troubleWith(folder).isEmpty() || name.contains(u'/') || !directory().mkdir(name))
            tell(u"Der Ordner kann nicht angelegt werden."_s);
        else
            setDirectory(folder);
    }

    QString open_;
};

} // namespace

QStringList WindowFileDialogs::nameFilters(const QString &filter)
{
    QStringList result;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = parts.at(i + 1).split(u';', Qt::SkipEmptyParts).join(u' ');
        result.append(parts.at(i).trimmed() + u" ("_s + patterns + u')');
    }
    return result;
}

QStringList WindowFileDialogs::openFiles(const QString &title, const QString &folder, const QString &filter,
                                         bool multiple)
{
    FileWindow dialog(QFileDialog::AcceptOpen, title, folder, filter, programFolder_);
    dialog.setFileMode(multiple ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    dialog.setLabelText(QFileDialog::Accept, u"Öffnen"_s);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QStringList chosen;
    const QStringList files = dialog.selectedFiles();
    for (const QString &file : files)
        chosen.append(storedPath(file));
    return chosen;
}

QString WindowFileDialogs::saveFile(const QString &title, const QString &folder, const QString &filter,
                                    const QString &suffix, const SaveHints &hints)
{
    FileWindow dialog(QFileDialog::AcceptSave, title, folder, filter, programFolder_);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setLabelText(QFileDialog::Accept, u"Speichern"_s);
    dialog.setDefaultSuffix(suffix.startsWith(u'.') ? suffix.mid(1) : suffix);
    if (!hints.name.isEmpty())
        dialog.selectFile(hints.name);
    if (!hints.open.isEmpty())
        dialog.setOpenFile(nativePath(hints.open));
    return dialog.exec() == QDialog::Accepted ? storedPath(dialog.selectedFiles().value(0)) : QString();
}

std::optional<Colour> WindowFileDialogs::chooseColour(const QString &title, Colour present)
{
    const auto part = [present](int shift) { return static_cast<int>(present >> shift & 0xFF); };
    QColorDialog dialog(QColor(part(0), part(8), part(16)), QApplication::activeWindow());
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    dialog.setWindowTitle(title);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QColor chosen = dialog.selectedColor();
    return static_cast<Colour>(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}
