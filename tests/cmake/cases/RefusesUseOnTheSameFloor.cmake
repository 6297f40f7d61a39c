room(cli_program KIND PROGRAM)
room(gui KIND PROGRAM USES cli_program)
set(REFUSED "Room 'gui' may not use 'cli_program': rooms of floor 5 do not know each other")
