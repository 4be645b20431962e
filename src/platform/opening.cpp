#include "platform/opening.h"

#include "platform/systemlog.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace {

void open(const QUrl &url, const std::string &name)
{
    if (!QDesktopServices::openUrl(url))
        systemLog("nothing opens %s", name.c_str());
}

} // namespace

void openFile(const std::string &path)
{
    const QString file = QFile::decodeName(path.c_str());
    if (!QFileInfo(file).isFile())
        return systemLog("no file %s", path.c_str());
    open(QUrl::fromLocalFile(file), path);
}

void openAddress(const std::string &address)
{
    open(QUrl(QString::fromStdString(address)), address);
}
