#include "shell/Headless.h"

#include "core/VantrixMapWid.h"
#include "host/KeyText.h"
#include "interfaces/Modal.h"
#include "shell/MappingView.h"
#include "vocabulary/KeyCodes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTextStream>

namespace {

constexpr int RoadKey = 7;
/// Scan code of "B", which names its button of the drawn keyboard.
constexpr int RoadScan = 48;
constexpr QSize PageSize(784, 808);

/// A column of text, cut or filled to its width.
QString cell(const QString &text, int width)
{
    return text.left(width).leftJustified(width) + QLatin1Char(' ');
}

void printKeys(const ProfileKeys &keys, QTextStream &out)
{
    out << "key  default       kind              code  function\n";
    for (int key = 0; key < KeyCount; ++key) {
        const KeyContent &content = keys[std::size_t(key)];
        const int kind = KeyText::inputType(key, content);
        out << QString::number(key).rightJustified(3) << "  "
            << cell(KeyText::codeName(defaultCodeOfKey(key)), 13)
            << cell(QLatin1String(inputTypeName(kind)), 17)
            << QString::number(effectiveCode(content.mapping)).rightJustified(4) << "  "
            << KeyText::functionName(key, content) << '\n';
    }
}

ProfileKeys keysOf(const DeviceImage &image)
{
    ProfileKeys keys;
    for (std::size_t key = 0; key < keys.size(); ++key)
        keys[key] = image.keys[key].content;
    return keys;
}

} // namespace

int Headless::walk(HostServices &services, const Road &road, QTextStream &out, QTextStream &err)
{
    // Nobody is there to answer.
    Modal::setAnswerer([](const ModalPrompt &) { return QVariant(0); });
    ShellContext context(services);
    MappingView view(context);
    services.environment().setMainWidget(&view);
    view.setCaptureAllowed(false);
    view.resize(PageSize);
    view.show();
    view.showProfile(road.profile, NoKey);
    QApplication::processEvents();
    const QStringList presses = {QStringLiteral("key_%1").arg(RoadKey),
                                 QStringLiteral("btn_%1").arg(RoadScan), QStringLiteral("m_apply")};
    for (const QString &name : presses) {
        auto *const button = view.page()->findChild<QAbstractButton *>(name);
        if (!button) {
            err << "The page has no button " << name << ".\n";
            return 1;
        }
        button->click();
        QApplication::processEvents();
    }
    Modal::setAnswerer(nullptr);
    const DeviceImage image = services.device().image(context.owner(), road.profile);
    out << "The device received profile " << image.profile + 1 << ":\n";
    printKeys(keysOf(image), out);
    if (!road.screenshot.isEmpty() && !view.page()->grab().save(road.screenshot)) {
        err << "The picture could not be written to " << road.screenshot << ".\n";
        return 1;
    }
    return 0;
}

void Headless::printProfile(HostServices &services, int profile, QTextStream &out)
{
    const int owner = ShellContext::Owner;
    const StoreState &state = services.store().state();
    out << "Store, " << state.profileName(owner, profile) << ":\n";
    printKeys(state.keys(owner, profile), out);
    out << "Device:\n";
    printKeys(keysOf(services.device().image(owner, profile)), out);
}
