# Tells in sentences what a replay did and what a person saw. Takes the script's commands and the
# replies to them, in $commands and $replies.

def on: if . then "on" else "off" end;

# A control's value as the panel shows it; nothing for what is hidden or only a label.
def shown:
  if .hidden then empty
  elif .items then .items[.index].title // "nothing"
  elif has("on") then .on | on
  elif has("value") then if .enabled then .value | tostring else empty end
  else empty end;

def setting_names: {
  ibPrintQuality: "print quality", ibPaperType: "paper type", ibPaperSource: "paper source",
  ibBlackAndWhite: "black and white", ibDisclosure: "advanced options", ibMIrror: "mirror image",
  ibAutoImageSharpening: "automatic sharpening", ibManualImageSharpening: "manual sharpening",
  ibManualImageSharpeningSlider: "sharpening amount", ibDryTimePopUp: "dry time",
  ibDryTimeCheckBox: "longer dry time"};

def settings: . as $state
  | if $state == null then {}
    else setting_names | with_entries(
      select($state.controls[.key]) | {key: .value, value: ([$state.controls[.key] | shown] | first)}
      | select(.value)) end;

def listed: to_entries | map("    \(.key): \(.value)") | join("\n");

def changes($before): with_entries(select($before[.key] != .value));

# What a person reads on a pop-up's item; its number until the panel is shown.
def item($state): $state.controls[.control].items[.index].title // "item \(.index + 1)";

def name: setting_names[.control] // .control;

def action($state):
  if .do == "open" then "The Print dialog opens for \(.ppd | split("/") | last)."
  elif .do == "willShow" then "The Print Settings panel is shown:"
  elif .do == "choose" then "The user sets \(name) to \(item($state))."
  elif .do == "click" then "The user clicks \(name)."
  elif .do == "slide" then "The user moves \(name) to \(.value)."
  elif .do == "page" then "The user chooses the paper size \(.page)."
  elif .do == "columns" then "The user chooses a layout of \(.columns) columns."
  elif .do == "summaryInfo" then "The summary pane lists:"
  elif .do == "saveValuesAndReturnError:" then "The user clicks Print. The job gets:"
  elif .do == "shouldShowHelp" then "The user asks for help."
  elif .do == "close" then "The dialog closes."
  else empty end;

# What a conflict window says, and its choices.
def window_text: .window as $window | .labels as $labels | .buttons as $buttons
  | [("A", "B", "C", "D") | $labels["ibLabel\(.)_\($window)"] | values | "    " + .]
  + [("First", "Second", "Third") as $choice
     | (if $buttons["ib\($choice)Button_\($window)"].on then "(*)" else "( )" end) as $mark
     | [("A", "B") | $labels["ibLabel\(.)_\($choice)Button_\($window)"] | values | select(. != "")]
     | select(. != []) | "      \($mark) " + join(", ")]
  | join("\n");

def happened:
  if .event == "window" then
    "  A window comes up, \"\(.title)\":\n"
    + if .window == "Instructions" then "    " + (.text | gsub("\n"; "\n    ")) else window_text end
  elif .event == "willChangePPDOptionKeyValue" then "    \(.key)=\(.choice)"
  elif .event == "panelViewDidResize" then "  The dialog follows the panel's new size."
  elif .event == "gotoPage" then
    "  The help book \"\(.book)\" opens\(if .page then " at \(.page)" else "" end)."
  else empty end;

def answered: .answers[]? | select(.choose // [] != [])
  | "  The user takes choice \(.choose | last) and clicks \(if .end == "close" then "the close button" else "OK" end).";

def outcome($reply; $before):
  if $reply.ok | not then "  That does not work: \($reply.error)"
  elif $reply.summary then $reply.summary | listed
  elif $reply.state then $reply.state | settings | changes($before) | listed | select(. != "")
  else empty end;

# Nobody saw what was there before the panel was shown.
reduce range($replies | length) as $i ({said: [], state: null, visible: false};
  $commands[$i] as $command | $replies[$i] as $reply
  | (.visible or $command.do == "willShow") as $visible
  | (if .visible then .state | settings else {} end) as $before
  | .said += [.state as $state | $command | action($state)]
  | .said += [$reply.events[]? | happened]
  | .said += [$command | answered]
  | .said += [if $visible or ($reply.ok | not) then outcome($reply; $before) else empty end]
  | .state = ($reply.state // .state) | .visible = $visible)
| .said[]
