room(core KIND SHARED)
room(Util KIND PART PART_OF LumidexUtil USES core host)
set(REFUSED "Room 'Util' may not use 'host': it stands above (floor 4 > 3)")
