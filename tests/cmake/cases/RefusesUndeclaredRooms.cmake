room(app KIND SHARED USES core)
set(REFUSED "Room 'app' may not use 'core': it is not declared before it")
