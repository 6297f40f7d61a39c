#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/DaysOfUse.h>

#include <zenvora/app/Application.h>

namespace Zenvora::Lumidex::Host {

void CountDayOfUse(const CatalogueDatabase& database) {
  // Empty beyond year 9999, which is a day like another.
  const QString today = NotNull(App::GetCurrentDateTime().toLocalTime().date().toString(Qt::ISODate));
  if (const QVariant last = database.Value("SELECT last FROM days_of_use");
      last.isValid() && last.toString() == today) {
    return;
  }
  database.Run(
      "INSERT INTO days_of_use (one, count, last) VALUES (1, 0, ?)"
      " ON CONFLICT (one) DO UPDATE SET count = count + 1, last = excluded.last",
      {today});
}

}  // namespace Zenvora::Lumidex::Host
