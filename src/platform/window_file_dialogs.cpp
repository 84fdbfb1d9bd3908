// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window_file_dialogs.h"

#include "platform/files.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

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

/// A dialog's common ways. The name filters are as patterns, which the label shows already.
void prepare(QFileDialog &dialog, QFileDialog::AcceptMode mode, const QString &title, const QString &folder,
             const QString &filter)
{
    dialog.setAcceptMode(mode); // first: it makes the buttons anew, and their words would be lost
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::HideNameFilterDetails);
    dialog.setWindowTitle(title);
    dialog.setDirectory(startFolder(folder));
    dialog.setNameFilters(WindowFileDialogs::nameFilters(filter));
    dialog.setLabelText(QFileDialog::LookIn, u"Suchen in:"_s);
    dialog.setLabelText(QFileDialog::FileName, u"Dateiname:"_s);
    dialog.setLabelText(QFileDialog::FileType, u"Dateityp:"_s);
    dialog.setLabelText(QFileDialog::Reject, u"Abbrechen"_s);
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
    QFileDialog dialog(QApplication::activeWindow());
    prepare(dialog, QFileDialog::AcceptOpen, title, folder, filter);
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
                                    const QString &suffix, const QString &suggestedName)
{
    QFileDialog dialog(QApplication::activeWindow());
    prepare(dialog, QFileDialog::AcceptSave, title, folder, filter);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // asked below, in German
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setLabelText(QFileDialog::Accept, u"Speichern"_s);
    dialog.setDefaultSuffix(suffix.startsWith(u'.') ? suffix.mid(1) : suffix);
    if (!suggestedName.isEmpty())
        dialog.selectFile(suggestedName);
    while (dialog.exec() == QDialog::Accepted) {
        const QString file = dialog.selectedFiles().value(0);
        // The stored form goes to the file that has this name in any case, so that is the one to ask about.
        if (!QFileInfo::exists(nativePath(file)) || mayReplace(&dialog, title, file))
            return storedPath(file);
    }
    return {};
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
