#include "app/KyrGMAppDelegate.h"

#include "controls/custumwindow.h"

custumwindow *KyrGMAppDelegate::window() const
{
    return m_window;
}

void KyrGMAppDelegate::setWindow(custumwindow *window)
{
    m_window = window;
}
