room(core KIND MODULE)
set(REFUSED "Room 'core': KIND must be SHARED, STATIC, PART or PROGRAM")
