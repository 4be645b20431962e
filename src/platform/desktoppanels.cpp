#include "platform/desktoppanels.h"

#include "platform/files.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace {

std::string pathBytes(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

QString suffixOf(const std::string &fileType)
{
    return QLatin1Char('.') + QString::fromStdString(fileType);
}

bool endsIn(const QString &path, const QString &suffix)
{
    return path.endsWith(suffix, Qt::CaseInsensitive);
}

/// The pattern matches any letter case by itself, for panels that look at the case.
QString nameFilter(const std::string &fileType)
{
    const QString type = QString::fromStdString(fileType);
    QString pattern;
    for (const QChar letter : type)
        pattern += QStringLiteral("[%1%2]").arg(letter.toLower()).arg(letter.toUpper());
    return QStringLiteral("%1 (*.%2)").arg(type, pattern);
}

QString documentsFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

/// Yes or no; neither when the parent window goes or the program quits meanwhile.
int askToReplace(const QString &path, QWidget *parent)
{
    const QPointer<QMessageBox> question(
        new QMessageBox(QMessageBox::Warning, QStringLiteral("Replace File"),
                        QStringLiteral("%1 already exists.\nDo you want to replace it?")
                            .arg(QFileInfo(path).fileName()),
                        QMessageBox::Yes | QMessageBox::No, parent));
    question->setObjectName(QStringLiteral("ReplaceQuestion"));
    question->setTextFormat(Qt::PlainText);
    question->setDefaultButton(QMessageBox::No);
    const int answer = question->exec();
    delete question.data();
    return answer;
}

} // namespace

std::optional<std::string> DesktopPanels::openPanel(const std::string &title,
                                                    const std::string &fileType)
{
    const QPointer<QWidget> parent(QApplication::activeWindow());
    for (;;) {
        QFileDialog *const panel = makePanel(parent, title, fileType);
        panel->setFileMode(QFileDialog::ExistingFile);
        const auto path = run(panel);
        if (!path)
            return {};
        if (endsIn(*path, suffixOf(fileType)))
            return pathBytes(*path);
    }
}

std::optional<std::string> DesktopPanels::savePanel(const std::string &title,
                                                    const std::string &proposedName,
                                                    const std::string &fileType)
{
    const QPointer<QWidget> parent(QApplication::activeWindow());
    const QString suffix = suffixOf(fileType);
    QString name = QFile::decodeName(proposedName.c_str());
    for (;;) {
        QFileDialog *const panel = makePanel(parent, title, fileType);
        panel->setAcceptMode(QFileDialog::AcceptSave);
        panel->selectFile(name);
        const auto path = run(panel);
        if (!path)
            return {};
        // The panel has asked whether to replace a file, but of the name as typed.
        if (endsIn(*path, suffix))
            return pathBytes(*path);
        name = *path + suffix;
        const int answer =
            isPresent(pathBytes(name)) ? askToReplace(name, parent) : QMessageBox::Yes;
        if (answer == QMessageBox::Yes)
            return pathBytes(name);
        if (answer != QMessageBox::No)
            return {};
    }
}

QFileDialog *DesktopPanels::makePanel(QWidget *parent, const std::string &title,
                                      const std::string &fileType) const
{
    const QString folder = QFileInfo(m_folder).isDir() ? m_folder : documentsFolder();
    auto *const panel = new QFileDialog(parent, QString::fromStdString(title), folder);
    panel->setObjectName(QStringLiteral("FilePanel"));
    panel->setOption(QFileDialog::HideNameFilterDetails);
    panel->setNameFilter(nameFilter(fileType));
    return panel;
}

std::optional<QString> DesktopPanels::run(QFileDialog *panel)
{
    const QPointer<QFileDialog> guard(panel);
    const bool isAccepted = panel->exec() == QDialog::Accepted;
    const QStringList paths = guard ? guard->selectedFiles() : QStringList();
    delete guard.data();
    if (!isAccepted || paths.isEmpty())
        return {};
    m_folder = QFileInfo(paths.constFirst()).absolutePath();
    return paths.constFirst();
}
