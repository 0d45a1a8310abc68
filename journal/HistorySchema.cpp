#include "journal/HistorySchema.h"

namespace orda_journal {

const QVector<QStringList> &historySteps()
{
    // Comments within a statement stay in the file, for those who look at it with other programs.
    static const QStringList first{
        QStringLiteral(R"(
CREATE TABLE runs (
  number     INTEGER PRIMARY KEY AUTOINCREMENT, -- in the order in which they began; below 0 those of other histories
  id         TEXT NOT NULL UNIQUE,
  family     TEXT NOT NULL,
  kind       TEXT NOT NULL,              -- "apply" or "undo"
  undoes     TEXT NOT NULL,              -- id of a run, or empty
  parameters TEXT NOT NULL,              -- what was to be set: JSON
  program    TEXT NOT NULL,
  began      INTEGER NOT NULL,           -- milliseconds since 1970, UTC
  ended      INTEGER NOT NULL DEFAULT 0, -- 0: under way, or its program ended before
  devices    INTEGER NOT NULL,           -- how many
  outcomes   TEXT NOT NULL DEFAULT ''    -- JSON: how many devices had which; stands here so that listing runs is quick
))"),
        QStringLiteral(R"(
CREATE TABLE devices (
  number       INTEGER PRIMARY KEY,      -- in the order in which they were chosen
  run          INTEGER NOT NULL REFERENCES runs(number) ON DELETE CASCADE,
  id           TEXT NOT NULL,
  name         TEXT NOT NULL,
  serialnumber TEXT NOT NULL,
  ip           TEXT NOT NULL,
  parameters   TEXT NOT NULL,            -- where they are not those of the run: JSON, else empty
  outcome      TEXT NOT NULL DEFAULT '', -- "done", "partly-written" …; empty while the run is under way
  code         INTEGER NOT NULL DEFAULT 0,
  message      TEXT NOT NULL DEFAULT '',
  late         TEXT NOT NULL DEFAULT ''  -- an answer after the outcome
))"),
        QStringLiteral("CREATE INDEX devices_of_runs ON devices (run)"),
        QStringLiteral(R"(
CREATE TABLE exchanges (
  device   INTEGER NOT NULL REFERENCES devices(number) ON DELETE CASCADE,
  exchange INTEGER NOT NULL,             -- its place among those of the family
  before   TEXT NOT NULL,                -- texts as they came from the device and went to it
  sent     TEXT NOT NULL,
  after    TEXT NOT NULL,
  UNIQUE (device, exchange)
))"),
    };
    // The members, as JSON, where the device says itself what it took. SQLite takes no comment here.
    static const QStringList second{QStringLiteral("ALTER TABLE exchanges ADD COLUMN taken TEXT NOT NULL DEFAULT ''")};
    static const QVector<QStringList> steps{first, second};
    return steps;
}

} // namespace orda_journal
