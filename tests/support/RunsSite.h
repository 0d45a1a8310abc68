#pragma once

#include "support/FleetOf.h"
#include "support/Store.h"

#include "client/runs/RunJobs.h"
#include "client/runs/RunsWindow.h"
#include "client/session/ClientSession.h"
#include "client/settings/ClientSettings.h"
#include "engine/ApplyJob.h"
#include "engine/Reach.h"
#include "fleet/EmbeddedFleet.h"
#include "journal/HistoryReader.h"
#include "journal/JournalTransport.h"

#include <QtTest>
#include <QtWidgets>
#include <families/Families.h>
#include <orda_base/BaseForm.h>
#include <shell/BatchCfgInit.h>
#include <vms_client_sdk/ClientSdk.h>

template <typename Widget = QAbstractButton>
Widget *child(const QWidget *window, const char *name)
{
    return window->findChild<Widget *>(name);
}

inline QStringList column(const QWidget *window, const char *table, int number)
{
    const auto *model = child<QTableView>(window, table)->model();
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(model->index(row, number).data().toString());
    return texts;
}

inline QStringList times(int count, const char *text)
{
    QStringList texts;
    while (texts.size() < count)
        texts.append(text);
    return texts;
}

inline QJsonObject parsed(QString text)
{
    return QJsonDocument::fromJson(text.replace('\'', '"').toUtf8()).object();
}

/// The client's session over a fleet, of which six devices are used, and the window of the runs.
struct RunsSite : QObject
{
    RunsSite()
    {
        QApplication::setDoubleClickInterval(100); // for which questions wait
        vms_sdk::ClientSdk::instance().setRequestTimeout(std::chrono::seconds(2));
        fleet.start();
        orda_data::DevsMgrData::instance().updateDevs(fleet.inventory());
        for (const int number : {0, 1, 2, 4, 5, 6})
            devIds.append(fleet.inventory().at(number).id);
        const auto isOnline = [](const QString &devId) { return orda_engine::reachOf(devId).canBeWritten; };
        if (!QTest::qWaitFor([&] { return std::all_of(devIds.begin(), devIds.end(), isOnline); }))
            qFatal("the devices did not come online");
        connect(&fleet, &device_fleet::EmbeddedFleet::requestReceived, this,
                [this](const QString &devId, const QString &method) {
                    if (method.contains("_set_"))
                        written.insert(devId);
                });
    }
    ~RunsSite() override
    {
        delete window;
        clearStore();
    }

    orda_journal::HistoryOptions options() const
    {
        orda_journal::HistoryOptions options;
        options.path = place.filePath("history.db");
        return options;
    }
    /// A run of the engine, recorded. @return its id
    QString run(const QString &values, const QStringList &on) const
    {
        QSignalSpy recorded(session.journal(), &orda_journal::JournalTransport::signalRunRecorded);
        orda_engine::ApplyJob job(session.journal(), {orda_batchCfg::Families::find("audio"), on, parsed(values)});
        job.start();
        return recorded.wait() ? job.runId() : QString();
    }
    orda_journal::RunDetails recorded(const QString &runId) const
    {
        return orda_journal::HistoryReader(options()).run(runId).value();
    }
    QVector<orda_journal::RunRow> runs() const { return orda_journal::HistoryReader(options()).runs(); }
    /// What a device holds of the audio parameters "in".
    int gain(const QString &devId) const
    {
        const QJsonObject device = fleet.dump().value("devices").toObject().value(devId).toObject();
        for (const QJsonValue &object : device)
            if (object.toObject().contains("aiGain"))
                return object.toObject().value("aiGain").toInt(-1);
        return -1;
    }

    /// Opens the window, turned to a run.
    bool open(const QString &runId)
    {
        window = new orda_client::RunsWindow(&session, &jobs, form.get(), &settings, nullptr);
        window->show();
        window->showRun(runId);
        const int devices = recorded(runId).devices.size();
        return QTest::qWaitFor([&] { return column(window, "runDevices", 0).size() == devices; });
    }
    /// Opens what reads the run's devices; back when it has shown them.
    QWidget *check(const char *button, const char *name, int devices) const
    {
        child(window, button)->click();
        QWidget *opened = child<QWidget>(window, name);
        const bool isShown = opened && QTest::qWaitFor([&] { return column(opened, "checked", 0).size() == devices; });
        return isShown ? opened : nullptr;
    }
    void answer(const QWidget *asker, const char *with = "write")
    {
        const auto boxes = asker->findChildren<QMessageBox *>("runQuestion"); // earlier ones may still be going
        auto *box = boxes.isEmpty() ? nullptr : boxes.last();
        question = box ? box->text() + '\n' + box->informativeText() : QString("(none)");
        if (box && QByteArray(with).startsWith("write")) {
            if (QByteArray(with) == "write")
                child(box, "confirm")->click(); // at once, as the second click of a double click
            if (!QTest::qWaitFor([&] { return child(box, "confirm")->isEnabled(); }) || !box->isVisible())
                question = "(answered before it could be read)";
            child(box, "confirm")->click();
        } else if (box) {
            box->reject();
        }
    }

    QTemporaryDir place;
    device_fleet::EmbeddedFleet fleet{fleetOf(30)};
    orda_client::ClientSession session{options()};
    orda_client::ClientSettings settings{QString()};
    std::unique_ptr<QWidget> form{orda_batchCfg::BatchCfgInit::instance().createBatchCfgForm()};
    orda_client::RunJobs jobs{&session};
    QPointer<orda_client::RunsWindow> window;
    QStringList devIds;
    QSet<QString> written; // ids of the devices that got a write
    QString question;
};
