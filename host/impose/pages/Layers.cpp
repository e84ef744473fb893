#include "host/impose/pages/Layers.h"

#include <set>

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

namespace {

std::set<QPDFObjGen> members(QPDFObjectHandle array) {
  std::set<QPDFObjGen> result;
  for (auto& item : array.aitems()) result.insert(item.getObjGen());
  return result;
}

bool isHidden(const QPDFObjectHandle& layer, QPDFObjectHandle states) {
  const bool areHidden = states.getKeyIfDict("/BaseState").isNameAndEquals("/OFF");
  const char* exceptions = areHidden ? "/ON" : "/OFF";
  return members(states.getKeyIfDict(exceptions)).contains(layer.getObjGen()) != areHidden;
}

// The dictionary or array of that name, which is made where it is not there.
QPDFObjectHandle part(QPDFObjectHandle whole, const char* name, const QPDFObjectHandle& empty) {
  if (!whole.hasKey(name)) whole.replaceKey(name, empty);
  return whole.getKey(name);
}

}  // namespace

void keepLayers(QPDF& document, QPDF& output) {
  QPDFObjectHandle properties = document.getRoot().getKey("/OCProperties");
  QPDFObjectHandle layers = properties.getKeyIfDict("/OCGs");
  if (!layers.isArray()) return;
  QPDFObjectHandle states = properties.getKeyIfDict("/D");
  QPDFObjectHandle kept =
      part(output.getRoot(), "/OCProperties", QPDFObjectHandle::newDictionary());
  QPDFObjectHandle all = part(kept, "/OCGs", QPDFObjectHandle::newArray());
  QPDFObjectHandle keptStates = part(kept, "/D", QPDFObjectHandle::newDictionary());
  QPDFObjectHandle hidden = part(keptStates, "/OFF", QPDFObjectHandle::newArray());
  for (auto& layer : layers.aitems()) {
    if (!layer.isIndirect() || !layer.isDictionary()) continue;
    const QPDFObjectHandle copy = output.copyForeignObject(layer);
    all.appendItem(copy);
    if (isHidden(layer, states)) hidden.appendItem(copy);
  }
}

}  // namespace tavrin
