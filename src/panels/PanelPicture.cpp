#include "panels/PanelPicture.h"

#include <QLabel>

PanelPicture::PanelPicture(const QString &path) : m_source(path + QStringLiteral("@2x.png")) {}

QSize PanelPicture::fittedInto(const QSize &box) const
{
    return m_source.size().scaled(box, Qt::KeepAspectRatio);
}

void PanelPicture::showIn(QLabel *label, const QSize &size) const
{
    const qreal ratio = label->devicePixelRatioF();
    QPixmap scaled = m_source.scaled((QSizeF(size) * ratio).toSize(), Qt::IgnoreAspectRatio,
                                     Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    label->setPixmap(scaled);
    label->setFixedSize(size);
}
