room(core KIND SHARED)
room(app KIND SHARED HEADER zenvora/app/App.h USES core)
room(tavolin KIND SHARED INCLUDES zenvora/app/App.h USES app)
set(ACCEPTED ON)
