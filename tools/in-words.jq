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

def action:
  if .do == "open" then "The Print dialog opens for \(.ppd | split("/") | last)."
  elif .do == "willShow" then "The Print Settings panel is shown:"
  elif .do == "choose" then "The user picks item \(.index + 1) of \(setting_names[.control] // .control)."
  elif .do == "click" then "The user clicks \(setting_names[.control] // .control)."
  elif .do == "slide" then "The user moves \(setting_names[.control] // .control) to \(.value)."
  elif .do == "page" then "The user chooses the paper size \(.page)."
  elif .do == "columns" then "The user chooses a layout of \(.columns) columns."
  elif .do == "summaryInfo" then "The summary pane lists:"
  elif .do == "saveValuesAndReturnError:" then "The user clicks Print. The job gets:"
  elif .do == "shouldShowHelp" then "The user asks for help."
  elif .do == "close" then "The dialog closes."
  else empty end;

def happened:
  if .event == "window" then
    if .window == "Instructions" then "  A window comes up, \"\(.title)\":\n    \(.text | gsub("\n"; "\n    "))"
    else "  A window comes up, \"\(.title)\":\n"
      + ([.labels | to_entries[] | select(.value != "") | "    \(.value)"] | join("\n")) end
  elif .event == "willChangePPDOptionKeyValue" then "    \(.key)=\(.choice)"
  elif .event == "panelViewDidResize" then "  The dialog follows the panel's new size."
  elif .event == "gotoPage" then
    "  The help book \"\(.book)\" opens\(if .page then " at \(.page)" else "" end)."
  else empty end;

def outcome($reply; $before):
  if $reply.ok | not then "  That does not work: \($reply.error)"
  elif $reply.summary then $reply.summary | listed
  elif $reply.state then $reply.state | settings | changes($before) | listed | select(. != "")
  else empty end;

reduce range($replies | length) as $i ({said: [], before: {}};
  $commands[$i] as $command | $replies[$i] as $reply | .before as $before
  | .said += [$command | action]
  | .said += [$reply.events[]? | happened]
  | .said += [outcome($reply; $before)]
  | if $reply.state then .before = ($reply.state | settings) else . end)
| .said[]
