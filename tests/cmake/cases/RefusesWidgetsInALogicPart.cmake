room(HolidayIntervalGenerator KIND PART PART_OF LumidexUtil LINKS Qt5::Widgets)
set(REFUSED "Room 'HolidayIntervalGenerator' may not link Qt Widgets: it holds logic")
