room(HolidayIntervalGenerator KIND PART PART_OF LumidexUtil)
room(Util KIND PART PART_OF LumidexUtil USES HolidayIntervalGenerator)
set(REFUSED "Room 'HolidayIntervalGenerator' has no floor")
