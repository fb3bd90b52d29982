// The local time.
#include "qtcore/clock.h"

#include <QDateTime>

namespace qtcore {

base::DateTime now() {
  const QDateTime moment = QDateTime::currentDateTime();
  const QDate date = moment.date();
  const QTime time = moment.time();
  return {.year = date.year(),
          .month = date.month(),
          .day = date.day(),
          .hour = time.hour(),
          .minute = time.minute(),
          .second = time.second()};
}

}  // namespace qtcore
