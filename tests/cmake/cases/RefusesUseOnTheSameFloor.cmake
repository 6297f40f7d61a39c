room(host_tags KIND STATIC)
room(host_rename KIND STATIC USES host_tags)
set(REFUSED "Room 'host_rename' may not use 'host_tags': rooms of floor 50 do not know each other")
