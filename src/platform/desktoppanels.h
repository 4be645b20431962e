#pragma once

#include "platform/filepanels.h"

#include <QtCore/QString>

class QFileDialog;
class QWidget;

/// The desktop's own file panels. A panel belongs to the window that is active at the call and
/// blocks the program's other windows; it counts as cancelled when that window goes or the program
/// quits meanwhile. It opens in the folder of the file chosen last, the first time in the user's
/// documents.
class DesktopPanels : public FilePanels
{
public:
    /// A file of another type is not taken: the panel is shown again.
    std::optional<std::string> openPanel(const std::string &title,
                                         const std::string &fileType) override;
    /// A name that does not end in the type, in any letter case, gets the suffix.
    std::optional<std::string> savePanel(const std::string &title, const std::string &proposedName,
                                         const std::string &fileType) override;

private:
    QFileDialog *makePanel(QWidget *parent, const std::string &title,
                           const std::string &fileType) const;
    std::optional<QString> run(QFileDialog *panel);

    QString m_folder; ///< of the file chosen last
};
