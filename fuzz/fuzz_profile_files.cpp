// Any bytes as a file of profiles: refused in words, or read, imported and written again unchanged.
//
// Run with -detect_leaks=0: the JSON parser of Qt 5.15 leaks an element when a name occurs twice.

#include "host/ProfileExchange.h"
#include "host/ProfileStore.h"

#include <QCoreApplication>

#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds)
        std::abort();
}

std::vector<int> numbers(const ExchangeContent &content)
{
    std::vector<int> result;
    for (const ExchangeContent::Profile &profile : content.profiles)
        result.push_back(profile.profile);
    return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    static int argc = 0;
    static const QCoreApplication application(argc, nullptr);
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QString error;
    const auto content = ProfileExchange::fromJson(bytes, QStringLiteral("f"), &error);
    check(content.has_value() == error.isEmpty());
    if (!content)
        return 0;
    const QByteArray json = ProfileExchange::toJson(*content);
    const auto again = ProfileExchange::fromJson(json, QStringLiteral("f"), &error);
    check(again && ProfileExchange::toJson(*again) == json);
    ProfileStore store{QString()};
    ProfileExchange::put(*content, store, 0);
    const ExchangeContent taken = ProfileExchange::take(store.state(), 0, numbers(*content));
    for (std::size_t i = 0; i < taken.profiles.size(); ++i)
        check(taken.profiles[i].keys == content->profiles[i].keys);
    return 0;
}
