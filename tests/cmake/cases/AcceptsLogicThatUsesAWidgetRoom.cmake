room(qtutility KIND SHARED HEADER zenvora/qtutility/Questions.h LINKS Qt5::Core Qt5::Widgets)
room(host_base KIND STATIC INCLUDES zenvora/qtutility/Questions.h USES qtutility)
room(cli_program KIND PROGRAM INCLUDES zenvora/qtutility/Questions.h USES_PRIVATELY host_base)
set(ACCEPTED ON)
