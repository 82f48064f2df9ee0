#include "host/HostKeyCapture.h"

void HostKeyCapture::startKeyCapture(QWidget *widget)
{
    if (m_widget == widget)
        return;
    m_widget = widget;
    emit capturingChanged();
}

void HostKeyCapture::stopKeyCapture()
{
    startKeyCapture(nullptr);
}
