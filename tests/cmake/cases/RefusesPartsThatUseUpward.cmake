room(core KIND SHARED)
room(Util KIND PART PART_OF LumidexUtil USES core host_base)
set(REFUSED "Room 'Util' may not use 'host_base': it stands above (floor 10 > 3)")
