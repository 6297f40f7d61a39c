#include "CatalogueMigrations.h"

#include <host/catalogue/CatalogueSchema.h>

#include <glog/logging.h>

#include <cstddef>

namespace Zenvora::Lumidex::Host {

using Statements = std::vector<const char*>;

const Statements& MigrationFrom(int version) {
  // Never changed once it has shipped: a new version is a new entry.
  static const std::vector<Statements> migrations = {
      {
          "PRAGMA application_id = 1280132184",
          "CREATE TABLE photos ("
          " number INTEGER PRIMARY KEY,"
          " id TEXT NOT NULL UNIQUE,"
          " path BLOB NOT NULL UNIQUE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " taken TEXT,"
          " taken_source INTEGER NOT NULL,"
          " camera TEXT NOT NULL,"
          " lost INTEGER NOT NULL DEFAULT 0 CHECK (lost IN (0, 1)))",
          "CREATE TABLE albums ("
          " number INTEGER PRIMARY KEY,"
          " id TEXT NOT NULL UNIQUE,"
          " name TEXT NOT NULL UNIQUE,"
          " first_day TEXT)",
          "CREATE TABLE album_photos ("
          " album INTEGER NOT NULL REFERENCES albums (number),"
          " position INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (album, position),"
          " UNIQUE (album, photo)) WITHOUT ROWID",
          "CREATE INDEX album_photos_by_photo ON album_photos (photo)",
          "CREATE TABLE album_attributes ("
          " album INTEGER NOT NULL REFERENCES albums (number),"
          " attribute INTEGER NOT NULL,"
          " value TEXT NOT NULL,"
          " PRIMARY KEY (album, attribute)) WITHOUT ROWID",
      },
      {
          // AUTOINCREMENT: the names of kept files hold numbers, which must not come back.
          "CREATE TABLE steps ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " name TEXT NOT NULL,"
          " begun TEXT NOT NULL,"
          " state INTEGER NOT NULL,"
          " files INTEGER NOT NULL DEFAULT 0,"
          " moves BLOB)",
          "CREATE TABLE changes ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " state INTEGER NOT NULL,"
          " path BLOB NOT NULL,"
          " side BLOB,"
          " adopted INTEGER NOT NULL DEFAULT 0 CHECK (adopted IN (0, 1)),"
          " kept_size INTEGER NOT NULL DEFAULT 0,"
          " digest_before BLOB,"
          " digest_after BLOB)",
          "CREATE INDEX changes_by_step ON changes (step)",
      },
      {
          // AUTOINCREMENT: a program of another version may still be at work with a number that went.
          "CREATE TABLE analysers ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " name TEXT NOT NULL,"
          " version INTEGER NOT NULL,"
          " length INTEGER NOT NULL,"
          " UNIQUE (name, version, length))",
          "CREATE TABLE features ("
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " analyser INTEGER NOT NULL REFERENCES analysers (number) ON DELETE CASCADE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " vector BLOB,"
          " problem TEXT NOT NULL,"
          " width INTEGER NOT NULL,"
          " height INTEGER NOT NULL,"
          " sharpness REAL NOT NULL,"
          " PRIMARY KEY (photo, analyser))",
          "CREATE TABLE clusters ("
          " id INTEGER PRIMARY KEY,"
          " analyser INTEGER NOT NULL REFERENCES analysers (number) ON DELETE CASCADE,"
          " count INTEGER NOT NULL CHECK (count > 0),"
          " centre BLOB NOT NULL)",
          "CREATE INDEX clusters_by_analyser ON clusters (analyser)",
          "CREATE TABLE cluster_photos ("
          " cluster INTEGER NOT NULL REFERENCES clusters (id) ON DELETE CASCADE,"
          " arrival INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (cluster, arrival)) WITHOUT ROWID",
          "CREATE INDEX cluster_photos_by_photo ON cluster_photos (photo)",
      },
      {
          "CREATE TABLE trashed ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " state INTEGER NOT NULL,"
          " path BLOB NOT NULL,"
          " place BLOB NOT NULL,"
          " note BLOB NOT NULL,"
          " photo INTEGER REFERENCES photos (number),"
          " kept BLOB NOT NULL,"
          " device INTEGER NOT NULL,"
          " file INTEGER NOT NULL,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL)",
          "CREATE INDEX trashed_by_step ON trashed (step)",
      },
      {
          "ALTER TABLE photos ADD COLUMN latitude REAL",
          "ALTER TABLE photos ADD COLUMN longitude REAL",
          "ALTER TABLE photos ADD COLUMN reading INTEGER NOT NULL DEFAULT 0",
          "CREATE TABLE tags ("
          " number INTEGER PRIMARY KEY,"
          " type INTEGER NOT NULL,"
          " name TEXT NOT NULL,"
          " UNIQUE (type, name))",
          "CREATE TABLE photo_tags ("
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " tag INTEGER NOT NULL REFERENCES tags (number),"
          " PRIMARY KEY (photo, tag)) WITHOUT ROWID",
          "CREATE INDEX photo_tags_by_tag ON photo_tags (tag)",
          "CREATE TABLE tag_changes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " tag INTEGER NOT NULL REFERENCES tags (number),"
          " added INTEGER NOT NULL CHECK (added IN (0, 1)),"
          " PRIMARY KEY (step, photo, tag)) WITHOUT ROWID",
      },
      {
          "ALTER TABLE steps ADD COLUMN kind INTEGER NOT NULL DEFAULT 0",
          "UPDATE steps SET kind = CASE WHEN moves IS NOT NULL THEN 1"
          " WHEN EXISTS (SELECT 1 FROM trashed t WHERE t.step = steps.number) THEN 3"
          " WHEN EXISTS (SELECT 1 FROM tag_changes c WHERE c.step = steps.number) THEN 4"
          " ELSE 2 END",
          // What is older than the counting of days is as old as its first day.
          "ALTER TABLE steps ADD COLUMN day INTEGER NOT NULL DEFAULT 0",
          // Of a sidecar that is edited along with its photo: the photo's change.
          "ALTER TABLE changes ADD COLUMN goes_with INTEGER",
          // Of what is kept of a photo that others gave another ending since.
          "ALTER TABLE changes ADD COLUMN kept_ending TEXT",
          "CREATE TABLE days_of_use ("
          " one INTEGER PRIMARY KEY CHECK (one = 1),"
          " count INTEGER NOT NULL,"
          " last TEXT NOT NULL)",
          "ALTER TABLE photos ADD COLUMN edges BLOB",
          "ALTER TABLE photos ADD COLUMN content BLOB",
          "ALTER TABLE photos ADD COLUMN camera_id TEXT",
          "ALTER TABLE photos ADD COLUMN tail BLOB",
          "CREATE INDEX photos_by_edges ON photos (edges) WHERE edges IS NOT NULL",
          "CREATE INDEX photos_by_camera_id ON photos (camera_id) WHERE camera_id IS NOT NULL",
          "CREATE TABLE volumes ("
          " path BLOB PRIMARY KEY,"
          " id TEXT NOT NULL) WITHOUT ROWID",
          "CREATE TABLE link_changes ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " path BLOB NOT NULL,"
          " side BLOB NOT NULL,"
          " target_before BLOB NOT NULL,"
          " target_after BLOB NOT NULL)",
          "CREATE INDEX link_changes_by_step ON link_changes (step)",
          "CREATE TABLE imported ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " path BLOB NOT NULL,"
          " source BLOB NOT NULL,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " digest BLOB NOT NULL)",
          "CREATE INDEX imported_by_step ON imported (step)",
          "CREATE TABLE album_changes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " name TEXT NOT NULL,"
          " first_day TEXT,"
          " created INTEGER NOT NULL CHECK (created IN (0, 1)),"
          " PRIMARY KEY (step, album_id)) WITHOUT ROWID",
          "CREATE TABLE album_change_photos ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " position INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (step, album_id, position)) WITHOUT ROWID",
          "CREATE TABLE album_change_attributes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " attribute INTEGER NOT NULL,"
          " value TEXT NOT NULL,"
          " PRIMARY KEY (step, album_id, attribute)) WITHOUT ROWID",
          // A preview may have been left over from another picture: what is known so far is to be compared.
          "ALTER TABLE features ADD COLUMN checked INTEGER NOT NULL DEFAULT 0 CHECK (checked IN (0, 1))",
          "CREATE TABLE origins ("
          " photo INTEGER PRIMARY KEY REFERENCES photos (number) ON DELETE CASCADE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " version INTEGER NOT NULL,"
          " degradation TEXT NOT NULL,"
          " flags INTEGER NOT NULL,"
          " quantisation REAL NOT NULL,"
          " bytes_per_pixel REAL NOT NULL)",
          "CREATE TABLE verdicts ("
          " photo INTEGER NOT NULL REFERENCES photos (number) ON DELETE CASCADE,"
          " kept INTEGER NOT NULL REFERENCES photos (number) ON DELETE CASCADE,"
          " photo_size INTEGER NOT NULL,"
          " photo_modified_ns INTEGER NOT NULL,"
          " kept_size INTEGER NOT NULL,"
          " kept_modified_ns INTEGER NOT NULL,"
          " version INTEGER NOT NULL,"
          " verdict INTEGER NOT NULL,"
          " why TEXT NOT NULL,"
          " worst REAL NOT NULL,"
          " PRIMARY KEY (photo, kept)) WITHOUT ROWID",
          "CREATE INDEX verdicts_by_kept ON verdicts (kept)",
      },
      // The columns are the same. Digests by which photos are known again have another form, in which older
      // programs would find none.
      {},
  };
  static_assert(kCatalogueApplicationId == 1280132184, "the first migration writes it");
  CHECK_EQ(migrations.size(), static_cast<std::size_t>(Catalogue::kSchemaVersion));
  return migrations.at(static_cast<std::size_t>(version));
}

}  // namespace Zenvora::Lumidex::Host
