#include "support/FormFixture.h"
#include "support/OrdaTest.h"

#include <orda_data/DataSignals.h>
#include <orda_data/DevsMgrData.h>
#include <orda_saas/LoginSignals.h>
#include <orda_saas/SaasWorker.h>

#include <QApplication>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <tuple>
#include <vector>

using orda_data::DataSignals;
using orda_data::DevsMgrData;
using vms_sdk::DevInfo;

namespace {

constexpr int devIdRole = Qt::UserRole + 1;

struct Row
{
    QString id, name, serial, ip;
    bool isTicked = false;
    bool isHidden = false;
};

/// What the list is to show, worked out the long way.
class ListModel
{
public:
    std::vector<std::pair<DevInfo, int>> store; ///< with their states, in order of insertion
    std::vector<Row> rows;
    QSet<QString> freelyOperable;
    QString keyword;

    std::pair<DevInfo, int> *stored(const QString &id)
    {
        const auto it = std::find_if(store.begin(), store.end(), [&](const auto &dev) { return dev.first.id == id; });
        return it == store.end() ? nullptr : &*it;
    }

    bool isEligible(const QString &id)
    {
        const auto *known = stored(id);
        if (!known || known->first.accessCode != 1 || (known->first.kindCode != 1 && known->first.kindCode != 6))
            return false;
        const auto &[dev, status] = *known;
        if (status != 1 && status != 5 && status != 6)
            return false;
        if (freelyOperable.contains(dev.serialNumber) || !dev.ip.isEmpty())
            return true;
        return status == 1 && dev.password == QLatin1String("sommer31");
    }

    Row *listed(const QString &id)
    {
        const auto it = std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return row.id == id; });
        return it == rows.end() ? nullptr : &*it;
    }

    void search()
    {
        const auto has = [this](const QString &text) { return text.contains(keyword, Qt::CaseInsensitive); };
        for (Row &row : rows)
            row.isHidden = !keyword.isEmpty() && !has(row.name) && !has(row.serial) && !has(row.ip);
    }

    void addEligible(const QString &id)
    {
        if (!isEligible(id) || listed(id))
            return;
        const DevInfo &dev = stored(id)->first;
        rows.push_back({id, dev.name.isEmpty() ? dev.serialNumber : dev.name, dev.serialNumber, dev.ip});
        search();
    }

    void remove(const QString &id)
    {
        rows.erase(std::remove_if(rows.begin(), rows.end(), [&](const Row &row) { return row.id == id; }), rows.end());
    }

    void removeIneligible()
    {
        const auto isNot = [this](const Row &row) { return !isEligible(row.id); };
        rows.erase(std::remove_if(rows.begin(), rows.end(), isNot), rows.end());
    }

    void update(const DevInfo &dev)
    {
        if (Row *row = listed(dev.id))
            *row = {dev.id, dev.name, dev.serialNumber, dev.ip, row->isTicked, row->isHidden};
        search();
    }

    void sort(int column)
    {
        const auto nameKey = [](const Row &row) { // "Cam 2" before "cam 10"
            const int digits = row.name.indexOf(QRegularExpression(QStringLiteral("[0-9]")));
            return std::tuple(row.name.left(digits).toLower(), digits < 0 ? -1 : row.name.mid(digits).toInt());
        };
        const auto ipKey = [](const Row &row) {
            std::vector<int> bytes;
            for (const QString &byte : row.ip.split(QLatin1Char('.')))
                bytes.push_back(row.ip.isEmpty() ? 256 : byte.toInt()); // none: last
            return bytes;
        };
        std::stable_sort(rows.begin(), rows.end(), [&](const Row &a, const Row &b) {
            if (column == 1)
                return nameKey(a) < nameKey(b);
            return column == 2 ? a.serial < b.serial : ipKey(a) < ipKey(b);
        });
    }

    void tickVisible(bool isTicked)
    {
        for (Row &row : rows)
            row.isTicked = row.isHidden ? row.isTicked : isTicked;
    }

    Qt::CheckState allState() const
    {
        const auto count = [this](bool onlyTicked) {
            return std::count_if(rows.begin(), rows.end(),
                                 [=](const Row &row) { return !row.isHidden && (row.isTicked || !onlyTicked); });
        };
        if (count(true) == 0)
            return Qt::Unchecked;
        return count(true) == count(false) ? Qt::Checked : Qt::PartiallyChecked;
    }

    QStringList checkedIds() const
    {
        QStringList ids;
        for (const Row &row : rows)
            if (row.isTicked && !row.isHidden)
                ids.append(row.id);
        return ids;
    }
};

/// Lays out, draws, and lets what was put off to the next turn happen.
void settle()
{
    for (int turn = 0; turn < 3; ++turn)
        QCoreApplication::processEvents();
}

/// The form and its model, to which the same happens.
class Twins
{
public:
    Twins(int devices, quint32 seed)
        : f(devices, [](const ScriptedTransport::Request &) { return QStringList(); })
        , random(seed)
        , table(f.table())
    {
        orda_saas::SaasWorker::instance().setFreelyOperable({});
        for (int i = 0; i < devices; ++i) {
            model.store.emplace_back(FormFixture::device(i), 1);
            model.addEligible(model.store.back().first.id);
        }
    }
    ~Twins() { orda_saas::SaasWorker::instance().setFreelyOperable({}); }
    Q_DISABLE_COPY_MOVE(Twins)

    QString act(); ///< something at random; says what
    QString difference(bool isSettled) const; ///< empty when there is none
    int below(int bound) { return int(random.bounded(quint32(bound))); }

private:
    QString someId() { return QStringLiteral("dev%1").arg(below(80)); } // known to the store or not
    DevInfo someDevice(const QString &id);
    void update(const DevInfo &dev, bool isHeard);
    void setStatus(const QString &id, int status, bool isHeard);
    void search();
    void tickByMouse();
    void tickAll();
    void enterprise();

    FormFixture f;
    ListModel model;
    QRandomGenerator random;
    QTableWidget *table;
};

DevInfo Twins::someDevice(const QString &id)
{
    const auto some = [this](const QStringList &texts) { return texts.at(below(texts.size())); };
    DevInfo dev = FormFixture::device(id.midRef(3).toInt());
    const QString number = QString::number(below(40));
    dev.name = some({dev.name, dev.name, QStringLiteral("CAM ") + number, QStringLiteral("Dome ") + number, QString()});
    dev.serialNumber = some({dev.serialNumber, dev.serialNumber, QStringLiteral("X") + number});
    dev.ip = some({dev.ip, dev.ip, QStringLiteral("9.1.200.") + number, QString()});
    dev.password = some({QString(), QStringLiteral("12345678"), QStringLiteral("sommer31")});
    dev.kindCode = below(12) == 0 ? 2 : below(2) * 5 + 1;
    dev.accessCode = below(12) == 0 ? 2 : 1;
    return dev;
}

void Twins::update(const DevInfo &dev, bool isHeard)
{
    const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
    DevsMgrData::instance().updateDevs({dev});
    if (auto *known = model.stored(dev.id))
        known->first = dev;
    else
        model.store.emplace_back(dev, 0);
    if (isHeard)
        model.update(dev);
}

void Twins::setStatus(const QString &id, int status, bool isHeard)
{
    const QSignalBlocker quiet(isHeard ? nullptr : &DataSignals::instance());
    DevsMgrData::instance().setDevStatus(id, vms_sdk::DevStatus(status));
    auto *known = model.stored(id);
    if (!known || std::exchange(known->second, status) == status || !isHeard)
        return;
    model.addEligible(id);
    if (!model.isEligible(id))
        model.remove(id);
}

void Twins::search()
{
    const QStringList keywords{QString(),
                               QString(),
                               QStringLiteral("cam 1"),
                               QStringLiteral("SN2"),
                               QStringLiteral("0.0.1"),
                               QStringLiteral("dome"),
                               QStringLiteral("2"),
                               QStringLiteral("nowhere")};
    model.keyword = keywords.at(below(keywords.size()));
    f.searchEdit()->setText(model.keyword);
    model.search();
}

void Twins::tickByMouse()
{
    settle();
    const int row = model.rows.empty() ? 0 : below(int(model.rows.size()));
    if (model.rows.empty() || model.rows[std::size_t(row)].isHidden)
        return;
    table->scrollToItem(table->item(row, 0));
    const QRect cell = table->visualItemRect(table->item(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, {cell.left() + 10, cell.center().y()});
    model.rows[std::size_t(row)].isTicked = !model.rows[std::size_t(row)].isTicked;
}

void Twins::tickAll()
{
    settle();
    const bool isTicked = model.allState() != Qt::Checked;
    f.tickAll();
    model.tickVisible(isTicked);
}

void Twins::enterprise()
{
    for (int i = 0; i < 4; ++i) {
        const QString id = someId();
        update(someDevice(id), false);
        setStatus(id, below(3), false);
    }
    emit orda_saas::LoginSignals::instance().signalEnterpriseStatus(below(3));
    for (const auto &[dev, status] : model.store)
        model.addEligible(dev.id);
}

QString Twins::act()
{
    constexpr const char *headers[]{"orderNumWt", "devName", "devSn", "devIp"};
    const QString id = someId();
    const int action = below(24);
    if (action < 8) {
        constexpr int states[]{1, 1, 1, 5, 6, 0, 3};
        const int status = states[below(7)];
        setStatus(id, status, true);
        return QStringLiteral("%1 has the state %2").arg(id).arg(status);
    }
    switch (action) {
    case 8:
    case 9:
    case 10:
        search();
        return QStringLiteral("search \"%1\"").arg(model.keyword);
    case 11:
    case 12: {
        const int column = below(4);
        QTest::mouseClick(f.page(headers[column]), Qt::LeftButton);
        if (column > 0)
            model.sort(column);
        return QStringLiteral("sort by column %1").arg(column);
    }
    case 13:
    case 14:
    case 15:
        tickByMouse();
        return QStringLiteral("a row ticked");
    case 16:
    case 17:
        tickAll();
        return QStringLiteral("all ticked");
    case 18: {
        const QStringList gone{id, someId(), someId()};
        DevsMgrData::instance().deleteDevs(gone);
        for (const QString &each : gone) {
            model.remove(each);
            const auto isIt = [&](const auto &dev) { return dev.first.id == each; };
            model.store.erase(std::remove_if(model.store.begin(), model.store.end(), isIt), model.store.end());
        }
        return QStringLiteral("deleted: ") + gone.join(QLatin1Char(' '));
    }
    case 19:
        for (int i = 0; i < 3; ++i)
            model.freelyOperable.insert(FormFixture::device(below(80)).serialNumber);
        orda_saas::SaasWorker::instance().setFreelyOperable(model.freelyOperable);
        enterprise();
        return QStringLiteral("the cloud's status");
    case 20:
        model.freelyOperable.clear();
        orda_saas::SaasWorker::instance().setFreelyOperable({});
        emit orda_saas::LoginSignals::instance().signalSaasLogoutSuccess();
        model.removeIneligible();
        return QStringLiteral("logged out");
    case 21: { // a site comes or goes
        const int status = below(4) == 0 ? 0 : 1;
        std::vector<QString> ids;
        for (const auto &dev : model.store)
            ids.push_back(dev.first.id);
        std::shuffle(ids.begin(), ids.end(), random);
        for (const QString &each : ids)
            if (below(4) != 0)
                setStatus(each, status, true);
        return QStringLiteral("many have the state %1").arg(status);
    }
    case 22:
        emit DataSignals::instance().signalUpdateDevs({someDevice(id)}, false, true);
        emit DataSignals::instance().signalDeleteDevs({id}, false);
        return QStringLiteral("signals that say that nothing happened");
    default:
        update(someDevice(id), true);
        return id + QStringLiteral(" changes");
    }
}

QString Twins::difference(bool isSettled) const
{
    const QHeaderView *header = table->verticalHeader();
    const int count = int(model.rows.size());
    if (table->rowCount() != count || header->count() != count)
        return QStringLiteral("%1 rows and %2 sections, not %3").arg(table->rowCount()).arg(header->count()).arg(count);
    int number = 0;
    for (int row = 0; row < count; ++row) {
        const Row &expected = model.rows[std::size_t(row)];
        const auto text = [&](int column) { return table->item(row, column)->text(); };
        const QString at = QStringLiteral("row %1, %2: ").arg(row).arg(expected.id);
        if (table->item(row, 0)->data(devIdRole) != expected.id)
            return at + table->item(row, 0)->data(devIdRole).toString();
        if (text(1) != expected.name || text(2) != expected.serial || text(3) != expected.ip
            || table->item(row, 1)->toolTip() != expected.name || !table->item(row, 3)->toolTip().isEmpty())
            return at + QStringLiteral("texts %1, %2, %3").arg(text(1), text(2), text(3));
        if (table->isRowHidden(row) != expected.isHidden)
            return at + QStringLiteral("hidden");
        if ((table->item(row, 0)->checkState() == Qt::Checked) != expected.isTicked)
            return at + QStringLiteral("ticked");
        if (header->sectionPosition(row) != number * header->defaultSectionSize()
            || table->rowHeight(row) != (expected.isHidden ? 0 : header->defaultSectionSize()))
            return at + QStringLiteral("%1 high at %2").arg(table->rowHeight(row)).arg(header->sectionPosition(row));
        if (!expected.isHidden && text(0) != QString::number(++number))
            return at + QStringLiteral("number ") + text(0);
    }
    const int length = number * header->defaultSectionSize();
    if (header->length() != length)
        return QStringLiteral("%1 long, not %2").arg(header->length()).arg(length);
    if (f.form->checkedDevIds() != model.checkedIds())
        return QStringLiteral("checked: ") + f.form->checkedDevIds().join(QLatin1Char(' '));
    if (isSettled && f.box("selAll")->checkState() != model.allState())
        return QStringLiteral("\"All\" is %1, not %2").arg(f.box("selAll")->checkState()).arg(model.allState());
    if (isSettled && table->verticalScrollBar()->maximum() != qMax(0, length - table->viewport()->height()))
        return QStringLiteral("scrolls to %1").arg(table->verticalScrollBar()->maximum());
    return {};
}

} // namespace

/// The form's list of devices beside a plain model of it.
class DevlistModelTest : public OrdaTest
{
    Q_OBJECT

private slots:
    void showsAFilledStore_data();
    void showsAFilledStore();
    void followsWhateverHappens_data();
    void followsWhateverHappens();
};

void DevlistModelTest::showsAFilledStore_data()
{
    QTest::addColumn<int>("devices");
    for (const int devices : {0, 1, 2, 10, 30, 300})
        QTest::addRow("%d devices", devices) << devices;
}

void DevlistModelTest::showsAFilledStore()
{
    QFETCH(int, devices);
    const Twins twins(devices, 0);
    for (const bool isSettled : {false, true}) {
        if (isSettled)
            settle();
        const QString difference = twins.difference(isSettled);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }
}

void DevlistModelTest::followsWhateverHappens_data()
{
    QTest::addColumn<int>("seed");
    const int seeds =
        qEnvironmentVariableIsSet("ORDA_LIST_SEEDS") ? qEnvironmentVariableIntValue("ORDA_LIST_SEEDS") : 40;
    for (int seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %d", seed) << seed;
}

void DevlistModelTest::followsWhateverHappens()
{
    QFETCH(int, seed);
    QRandomGenerator random{quint32(seed)};
    Twins twins(int(random.bounded(60)), quint32(seed));
    QStringList history;
    for (int step = 0; step < 150; ++step) {
        for (int burst = twins.below(4); burst >= 0; --burst)
            history.append(twins.act());
        const bool isSettled = twins.below(2) == 0;
        if (isSettled)
            settle();
        const QString difference = twins.difference(isSettled);
        const QString last = QStringList(history.mid(history.size() - 12)).join(QLatin1String("; "));
        QVERIFY2(
            difference.isEmpty(),
            qPrintable(QStringLiteral("seed %1, step %2: %3, after: %4").arg(seed).arg(step).arg(difference, last)));
    }
}

ORDA_TEST_MAIN(DevlistModelTest)
#include "devlist_model_test.moc"
