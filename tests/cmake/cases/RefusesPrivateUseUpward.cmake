room(core KIND SHARED)
room(tavolin KIND SHARED USES core USES_PRIVATELY LumidexUtil)
set(REFUSED "Room 'tavolin' may not use 'LumidexUtil': it stands above (floor 3 > 2)")
