room(core KIND SHARED)
room(app KIND SHARED USES core tavolin)
room(tavolin KIND SHARED USES core)
set(REFUSED "Room 'app' may not use 'tavolin': it is not declared before it")
