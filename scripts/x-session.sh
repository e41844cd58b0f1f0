# A virtual display with the program on it, for scripts that work it with mouse and keyboard. Sourced, after
# build= is set to the build folder; with accessible=yes, controls can be found by their names. Gives: work
# (a folder that goes at the end), HOME inside it, start_program, wait_until, wait_for_log, screenshot,
# cut_out, point_at, window_named, focus, wait_for_no_window, start_drag_source, take_from, glide,
# quit_program. A script that fails leaves a picture of the display in the folder "screenshots" of the build
# folder.

if [ -z "${VELMORA_DISPLAY_READY:-}" ]; then
  export VELMORA_DISPLAY_READY=1 VELMORA_WORK
  VELMORA_WORK=$(mktemp -d)
  bus=()
  if [ -n "${accessible:-}" ]; then
    # A message bus of its own, whose helpers leave nothing outside the folder.
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 GSETTINGS_BACKEND=memory
    bus=(env HOME="$VELMORA_WORK" XDG_RUNTIME_DIR="$VELMORA_WORK" dbus-run-session --)
  fi
  # Without repeated keys: on a busy machine a key can be down for longer than its user meant.
  exec xvfb-run -a -s '-screen 0 1600x900x24 -nolisten tcp -r' "${bus[@]}" "$0" "$@"
fi

work=$VELMORA_WORK
program=
helpers=()
finish() {
  local result=$? process
  [ $result -eq 0 ] || screenshot "$build/screenshots/$(basename "$0")_failed.png" || true
  for process in $program "${helpers[@]}"; do
    kill "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT

export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 NO_AT_BRIDGE=1
mkdir -p "$HOME" -m 700 "$XDG_RUNTIME_DIR"

# wait_until COMPLAINT COMMAND...: waits until the command succeeds, or complains and fails after a while.
wait_until() {
  local tries
  for tries in $(seq 300); do
    "${@:2}" && return
    sleep 0.1
  done
  echo "$1" >&2
  return 1
}

# Waits until a line of the program's log matches, or fails after a while.
wait_for_log() {
  local tries
  for tries in $(seq 300); do
    grep -q -- "$1" "$work/log" "$work/out.log" && return
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
  done
  echo "The program never said: $1" >&2
  cat "$work/log" >&2
  return 1
}

# Gives the visible window of that title, once there is one. A search that meets a window which is just going
# fails and is made anew.
window_named() {
  local tries window
  for tries in $(seq 300); do
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1) || true
    [ -n "$window" ] && echo "$window" && return
    sleep 0.1
  done
  echo "There is no window \"$1\"." >&2
  return 1
}

# Waits until no window of that title is to be seen.
wait_for_no_window() {
  local tries windows
  for tries in $(seq 300); do
    windows=$(xdotool search --onlyvisible --name "^$1\$" 2>&1) || [ -n "$windows" ] || return 0
    sleep 0.1
  done
  echo "The window \"$1\" did not go." >&2
  return 1
}

# Gives the window of that title the keyboard, as a window manager would, and waits until it has it.
focus() {
  local tries window
  window=$(window_named "$1")
  for tries in $(seq 100); do
    xdotool windowfocus "$window" 2>/dev/null || true
    sleep 0.1
    [ "$(xdotool getwindowfocus 2>/dev/null || true)" = "$window" ] && return
  done
  echo "The window \"$1\" did not take the keyboard." >&2
  return 1
}

# Starts the program, waits for the end of its first search, and gives its window a fixed
# place and the keyboard.
start_program() {
  "$build/app/velmora" >"$work/out.log" 2>"$work/log" &
  program=$!
  wait_for_log 'GOT SEARCH DONE MESSAGE'
  local window
  window=$(window_named 'KORVANE Velmora')
  xdotool windowmove "$window" 0 0 windowsize "$window" 1270 880
  focus 'KORVANE Velmora'
  sleep 1
}

# Moves the mouse to the middle of the control with one of these accessible names.
point_at() {
  local middle
  middle=$(find_control "$@")
  xdotool mousemove $middle
}

# Gives "X Y", the middle of the control with one of these accessible names.
find_control() { "$(dirname "${BASH_SOURCE[0]}")/find-control" "$@"; }

# glide X Y: moves the mouse there as a hand does.
glide() {
  local X Y step
  eval "$(xdotool getmouselocation --shell | grep -E '^[XY]=')"
  for step in $(seq 20); do
    xdotool mousemove $((X + ($1 - X) * step / 20)) $((Y + ($2 - Y) * step / 20))
    sleep 0.02
  done
  sleep 0.3
}

# start_drag_source PATH...: another program, from whose window these files can be dragged. The window, whose
# number "drag_source" has then, stands beside the program's.
start_drag_source() {
  "$build/tests/imaging/drag_source" "$@" &
  helpers+=($!)
  drag_source=$(timeout 30 xdotool search --sync --onlyvisible --class drag_source | head -n 1)
  timeout 30 xdotool windowmove --sync "$drag_source" 1300 0
}

# take_from WINDOW: presses the mouse button in the middle of the window, and keeps it down.
take_from() {
  local X Y WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) mousedown 1
}

# Leaves a picture of the display in a file.
screenshot() {
  mkdir -p "$(dirname "$1")"
  ffmpeg -v error -y -f x11grab -video_size "${2:-1270x880}" -i "$DISPLAY" -frames:v 1 -update 1 "$1"
}

# cut_out FILE X Y WIDTH HEIGHT: leaves a picture of a part of the display.
cut_out() {
  ffmpeg -v error -y -f x11grab -video_size "$4x$5" -i "$DISPLAY+$2,$3" -frames:v 1 -update 1 "$1"
}

# Ends the program from the keyboard and gives its exit code.
quit_program() {
  local tries process=$program
  xdotool key ctrl+q
  for tries in $(seq 100); do
    kill -0 "$process" 2>/dev/null || break
    sleep 0.1
  done
  program=
  wait "$process"
}
