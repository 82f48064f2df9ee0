#include "host/HostKeyCapture.h"

void HostKeyCapture::startKeyCapture(QWidget *widget)
{
    m_widget = widget;
}

void HostKeyCapture::stopKeyCapture()
{
    m_widget.clear();
}
