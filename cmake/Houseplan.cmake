# The plan of the house: for each room, lowest first, the rooms that it may include besides itself.
# `room` (Room.cmake) builds by it, and the test "include_walk" holds every source against it.
set(HOUSE_ROOMS
  platform platform/qt charting settings auto_button diary exchange reports graphwindow records shell)

set(MAY_INCLUDE_platform            "")
set(MAY_INCLUDE_platform/qt         platform)
set(MAY_INCLUDE_charting            platform)
set(MAY_INCLUDE_settings            platform)
set(MAY_INCLUDE_auto_button platform)
set(MAY_INCLUDE_diary               platform settings auto_button)
set(MAY_INCLUDE_exchange            platform settings auto_button diary)
set(MAY_INCLUDE_reports             platform settings auto_button diary)
set(MAY_INCLUDE_graphwindow         platform settings auto_button diary charting)
set(MAY_INCLUDE_records             platform settings auto_button reports)
set(MAY_INCLUDE_shell               ${HOUSE_ROOMS})
