room(host_scan KIND STATIC)
room(host_search KIND STATIC USES host_scan)
set(REFUSED "Room 'host_search' may not use 'host_scan': rooms of floor 40 do not know each other")
