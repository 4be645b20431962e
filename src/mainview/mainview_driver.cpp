#include "dialogs/PopupProgressBar.h"
#include "mainview/MainView.h"

using driver::RequestType;

void MainView::PostSettingChange(int /*requestedType*/)
{
    m_driver.request(RequestType::TakeSettings);
}

void MainView::SendPollingrate(std::int32_t code)
{
    m_driver.request(RequestType::SetPollingRate, driver::kPollingRateKey, code);
}

void MainView::SendLiftDistance(std::int32_t code)
{
    m_driver.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, code);
}

void MainView::PostGetFWNumber()
{
    m_driver.request(RequestType::ReportFirmware);
}

void MainView::PostGetLiftDistance()
{
    m_driver.request(RequestType::ReportLiftDistance);
}

void MainView::observeDriver()
{
    struct Receiver
    {
        driver::Report report;
        void (MainView::*receive)(std::int32_t value);
    };
    static constexpr Receiver receivers[] = {
        {driver::kProfileReport, &MainView::profileChanged},
        {driver::kProgressReport, &MainView::WriteToFWChanged},
        {driver::kFirmwareReport, &MainView::GetFWNumber},
        {driver::kLiftDistanceReport, &MainView::GetLiftDistance},
    };
    for (const Receiver &receiver : receivers) {
        m_driver.observe(receiver.report,
                         [self = QPointer(this), receive = receiver.receive](std::int32_t value) {
                             if (self)
                                 (self->*receive)(value);
                         });
    }
}

void MainView::profileChanged(std::int32_t number)
{
    // The mouse counts from 1. Subtracted unsigned: any number may come.
    SetProfileID(static_cast<std::int32_t>(static_cast<std::uint32_t>(number) - 1U));
}

void MainView::WriteToFWChanged(std::int32_t position)
{
    if (!bDisplayWriteDeviceWindow)
        return;
    pPopUpBarView->SetProgressPos(position);
    if (position > 99)
        closeWriteDeviceBar();
}

void MainView::GetFWNumber(std::int32_t number)
{
    m_FWNumber = static_cast<std::uint32_t>(number);
}

void MainView::GetLiftDistance(std::int32_t code)
{
    m_LiftDistance = static_cast<std::uint32_t>(code);
}
