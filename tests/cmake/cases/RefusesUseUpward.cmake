room(core KIND SHARED USES app)
set(REFUSED "Room 'core' may not use 'app': it stands above (floor 2 > 0)")
