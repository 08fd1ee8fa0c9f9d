#include "core/records/ExchangeOrder.h"

#include <QtTest>
#include <random>

/// Compares the order with what the exchange sort itself leaves.
class tst_ExchangeOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShortList();
    void randomLists_data();
    void randomLists();
    void longList();
};

namespace {

using Entry = std::pair<double, std::size_t>; // key and place before

std::vector<std::size_t> ExchangedLiterally(const std::vector<double> &keys)
{
    std::vector<Entry> list;
    for (const double key : keys)
        list.emplace_back(key, list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        for (std::size_t j = i + 1; j < list.size(); ++j) {
            if (list[j].first < list[i].first)
                std::swap(list[i], list[j]);
        }
    }
    std::vector<std::size_t> places;
    for (const Entry &entry : list)
        places.push_back(entry.second);
    return places;
}

} // namespace

void tst_ExchangeOrder::everyShortList()
{
    for (unsigned length = 0; length <= 7; ++length) {
        const auto lists = static_cast<unsigned>(std::pow(4, length));
        for (unsigned number = 0; number < lists; ++number) {
            std::vector<double> keys;
            for (unsigned digits = number; keys.size() < length; digits /= 4)
                keys.push_back(digits % 4);
            QCOMPARE(ExchangeOrder(keys), ExchangedLiterally(keys));
        }
    }
}

void tst_ExchangeOrder::randomLists_data()
{
    QTest::addColumn<unsigned>("differentKeys");
    for (const unsigned keys : {1U, 2U, 3U, 10U, 60U, 1000U})
        QTest::addRow("%u keys", keys) << keys;
}

void tst_ExchangeOrder::randomLists()
{
    QFETCH(unsigned, differentKeys);
    std::mt19937 random(differentKeys);
    for (int round = 0; round < 60; ++round) {
        std::vector<double> keys(random() % 400);
        for (double &key : keys)
            key = static_cast<double>(random() % differentKeys);
        QCOMPARE(ExchangeOrder(keys), ExchangedLiterally(keys));
    }
}

void tst_ExchangeOrder::longList()
{
    std::mt19937 random(3);
    std::vector<double> keys(65535);
    for (double &key : keys)
        key = -static_cast<double>(random() % 20);
    const std::vector<std::size_t> order = ExchangeOrder(keys);
    std::vector<bool> seen(keys.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        QVERIFY(!seen[order[i]]);
        seen[order[i]] = true;
        QVERIFY(i == 0 || keys[order[i - 1]] <= keys[order[i]]);
    }
}

QTEST_APPLESS_MAIN(tst_ExchangeOrder)
#include "tst_ExchangeOrder.moc"
