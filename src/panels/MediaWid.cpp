#include "panels/MediaWid.h"

#include "interfaces/ButtonGroupEx.h"
#include "panels/PanelRecords.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyImages.h"

#include "ui_MediaUi.h"

#include <QPushButton>

namespace {

QString mediaSheet(ushort code)
{
    const QString picture = imageOf(MediaImages(), code);
    const QString icon =
        picture.isEmpty() ? QString() : QStringLiteral("qproperty-icon:url(%1);").arg(picture);
    return QStringLiteral("QPushButton{background:transparent;border:1px solid white;"
                          "min-height:20px;") +
           icon +
           QStringLiteral("qproperty-iconSize:30px 20px;}"
                          ":hover{background:rgba(255,255,255,50);}:checked{background:") +
           inputColor(InputType::Media).name(QColor::HexArgb) + QStringLiteral(";border:none;}");
}

class MediaKey : public QPushButton
{
public:
    MediaKey(ushort code, MediaWid *owner) : QPushButton(owner)
    {
        const QString name = keyFunctionText(code);
        setAccessibleName(name);
        setToolTip(name);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        setStyleSheet(mediaSheet(code));
    }
};

} // namespace

MediaWid::MediaWid(QWidget *parent) : FunctionWid(parent), m_ui(std::make_unique<Ui::MediaUi>())
{
    m_ui->setupUi(this);
    for (const ushort code : InputKeyLists().at(InputType::Media)) {
        auto *const key = new MediaKey(code, this);
        addFunction(key, code);
        m_ui->m_keyLayout->addWidget(key);
    }
    connect(group(), &ButtonGroupEx::sigButtonClicked, this, &MediaWid::slotMediaKeyClicked);
}

MediaWid::~MediaWid() = default;

void MediaWid::slotMediaKeyClicked(QAbstractButton *button)
{
    emit sigMediaChanged(recordOfClick(group(), button));
}
