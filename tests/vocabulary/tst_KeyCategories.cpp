#include "vocabulary/KeyCategories.h"

#include "support/TestMain.h"

// clang-format off
namespace {

struct CategoryRow { const char *title; std::vector<ushort> codes; };
const std::vector<CategoryRow> Categories = {
    {"ALPHANUMERIC", {4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 2817, 2818, 2819, 2820, 2821, 2822, 2823, 2824, 2825, 2826}},
    {"SYMBOLS && PUNCTUATION", {2816, 3072, 3073, 3074, 3075, 3076, 3077, 3078, 3079, 3080, 3081, 3082, 2827, 3083, 2828, 3084, 2829, 2830, 3085, 3086, 2831, 3087, 2832, 3088, 2833, 3089, 2834, 3090, 2835, 3091, 2836, 3092}},
    {"NAVIGATION KEYS", {82, 81, 80, 79, 73, 76, 74, 77, 75, 78, 44, 40, 42, 41}},
    {"MODIFIER", {225, 229, 224, 228, 226, 230, 57}},
    {"FUNCTION KEYS", {58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 69, 104, 105, 106, 107, 108, 109, 110, 111, 112, 113, 114, 115, 70, 71, 72, 227}},
    {"NUMBERPAD KEYS", {83, 89, 90, 91, 92, 93, 94, 95, 96, 97, 98, 84, 85, 86, 87, 88}},
};

} // namespace
// clang-format on

/// The categories of keyboard functions, place by place.
class tst_KeyCategories : public QObject
{
    Q_OBJECT

private slots:
    void category_data();
    void category();
    void code_data();
    void code();
};

void tst_KeyCategories::category_data()
{
    QTest::addColumn<int>("number");
    for (std::size_t number = 0; number < Categories.size(); ++number)
        QTest::newRow(Categories[number].title) << int(number);
}

void tst_KeyCategories::category()
{
    QFETCH(int, number);
    QCOMPARE(KeyCategories().size(), std::size_t(6));
    const KeyCategory &category = KeyCategories()[std::size_t(number)];
    QCOMPARE(category.title, Categories[std::size_t(number)].title);
    QCOMPARE(category.codes.size(), Categories[std::size_t(number)].codes.size());
}

void tst_KeyCategories::code_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("place");
    for (std::size_t number = 0; number < Categories.size(); ++number) {
        const CategoryRow &row = Categories[number];
        for (std::size_t place = 0; place < row.codes.size(); ++place)
            QTest::addRow("%s %d code %d", row.title, int(place), int(row.codes[place]))
                << int(number) << int(place);
    }
}

void tst_KeyCategories::code()
{
    QFETCH(int, number);
    QFETCH(int, place);
    const auto &codes = KeyCategories()[std::size_t(number)].codes;
    QVERIFY(std::size_t(place) < codes.size());
    QCOMPARE(codes[std::size_t(place)], Categories[std::size_t(number)].codes[std::size_t(place)]);
}

VANTRIX_TEST_MAIN(tst_KeyCategories)
#include "tst_KeyCategories.moc"
