room(core KIND SHARED EXTRA)
set(REFUSED "Room 'core': unknown arguments EXTRA")
