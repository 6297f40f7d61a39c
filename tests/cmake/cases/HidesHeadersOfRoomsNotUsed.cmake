room(core KIND SHARED HEADER zenvora/core/Core.h)
room(app KIND SHARED INCLUDES zenvora/core/Core.h)
set(UNBUILT "zenvora/core/Core.h")
