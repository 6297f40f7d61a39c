room(LumidexUtil KIND SHARED)
room(Util KIND PART PART_OF LumidexUtil USES LumidexUtil)
set(REFUSED "Room 'Util' may not use 'LumidexUtil': rooms of floor 3 do not know each other")
