#include "host/impose/pages/ImageObject.h"

#include <QByteArray>
#include <QColorSpace>

namespace tavrin {

namespace {

constexpr std::size_t kProfileHeader = 128;

const char* deviceSpace(int components) {
  if (components == 1) return "/DeviceGray";
  return components == 3 ? "/DeviceRGB" : "/DeviceCMYK";
}

// As a profile names the colours that it is for.
std::string_view profileSpace(int components) {
  if (components == 1) return "GRAY";
  return components == 3 ? "RGB " : "CMYK";
}

bool suits(const std::string& profile, int components) {
  return profile.size() > kProfileHeader && profile.substr(36, 4) == "acsp" &&
         profile.substr(16, 4) == profileSpace(components);
}

// Colours without a profile are taken for these.
bool isUsual(const std::string& profile) {
  const auto space =
      QColorSpace::fromIccProfile(QByteArray::fromRawData(profile.data(), profile.size()));
  return space == QColorSpace(QColorSpace::SRgb);
}

QPDFObjectHandle colourSpace(QPDF& output, const ImageFormat& format) {
  const auto device = QPDFObjectHandle::newName(deviceSpace(format.components));
  if (!suits(format.profile, format.components) || isUsual(format.profile)) return device;
  QPDFObjectHandle stream = output.newStream(format.profile);
  stream.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(format.components));
  stream.getDict().replaceKey("/Alternate", device);
  return QPDFObjectHandle::newArray({QPDFObjectHandle::newName("/ICCBased"), stream});
}

}  // namespace

QPDFObjectHandle imageObject(QPDF& output, const ImageFormat& format) {
  QPDFObjectHandle image = output.newStream();
  QPDFObjectHandle dict = image.getDict();
  dict.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
  dict.replaceKey("/Subtype", QPDFObjectHandle::newName("/Image"));
  dict.replaceKey("/Width", QPDFObjectHandle::newInteger(format.width));
  dict.replaceKey("/Height", QPDFObjectHandle::newInteger(format.height));
  dict.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
  dict.replaceKey("/ColorSpace", colourSpace(output, format));
  return image;
}

}  // namespace tavrin
