room(cellar KIND SHARED)
set(REFUSED "Room 'cellar' has no floor")
