#include "daemon/virtualmouseinterface.h"

#include "daemon/driverprocess.h"

int VirtualMouseInterface::PressProfileButton()
{
    return m_driver.pressProfileButton();
}

bool VirtualMouseInterface::SetActiveProfile(int number)
{
    return m_driver.setActiveProfile(number);
}

QString VirtualMouseInterface::Describe()
{
    return QString::fromStdString(m_driver.describe());
}
