room(cli KIND PROGRAM)
room(gui KIND PROGRAM USES cli)
set(REFUSED "Room 'gui' may not use 'cli': rooms of floor 5 do not know each other")
