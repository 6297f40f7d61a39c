room(core KIND SHARED HEADER zenvora/core/Core.h)
room(app KIND SHARED USES core)
room(tavolin KIND SHARED INCLUDES zenvora/core/Core.h USES app)
set(ACCEPTED ON)
