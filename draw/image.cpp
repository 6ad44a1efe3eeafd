// osg::Image: its size, layout and pixel format, OSG's own per-pixel color access and
// transformations, and the static layout arithmetic. The pixels themselves cross as a buffer
// view (draw/views.cpp), never as a raw pointer.
#include "draw/bind.h"
#include "wrap/object_class.h"

using namespace wrap;

namespace {

using I = osg::Image;
using K = ObjectClass<I, "osg::Image", "Image">;
using V4 = osg::Vec4;

constexpr auto glenum = handle<draw::glenum>("GLenum");
constexpr Text i = "int";
constexpr Text ui = "unsigned int";
constexpr Text vec4 = "osg::Vec4 const &";

template <Text Member, auto F, Text... Spell>
using m = K::m<Member, F, Spell...>;
template <Text Member, auto F, Text... Spell>
using sm = K::sm<Member, F, Spell...>;

template <auto F>
constexpr auto gl = returns_handle<draw::glenum, F>;

// The short forms call the member by name, so OSG's own defaults fill in the rest.
constexpr auto allocate = [](I *image, auto... a) { image->allocateImage(a...); };
constexpr auto get_color = [](const I *image, auto... a) { return image->getColor(a...); };
constexpr auto set_color = [](I *image, auto... a) { image->setColor(a...); };

// The statics with defaults, one candidate per form, longest first.
template <class... A>
constexpr auto image_size = [](A... a) { return I::computeImageSizeInBytes(a...); };
template <class... A>
constexpr auto power_of_two = [](A... a) { return I::computeNearestPowerOfTwo(a...); };
template <class... A>
constexpr auto mipmap_levels = [](A... a) { return I::computeNumberOfMipmapLevels(a...); };

}  // namespace

void add_image_rows(Table &t, Constants &c) {
    t.push_back(K::ctor<TakeRef::Count>());
    K::meta(t);
    add(t, {
        K::pair<"asImage", pick<I *(I::*)()>(&I::asImage), pick<const I *(I::*)() const>(&I::asImage)>(),
        K::fn<"compare", &I::compare, "osg::Image const &">(),
        K::fn<"setFileName", &I::setFileName, "std::string const &">(),
        K::fn<"getFileName", &I::getFileName>(),
        K::fn<"setWriteHint", &I::setWriteHint, "osg::Image::WriteHint">(),
        K::fn<"getWriteHint", &I::getWriteHint>(),
        K::fn<"setAllocationMode", &I::setAllocationMode, "osg::Image::AllocationMode">(),
        K::fn<"getAllocationMode", &I::getAllocationMode>(),
        K::overload<"allocateImage",
                    K::forms<"allocateImage", allocate, 5, List<I *, int, int, int, GLenum, GLenum, int>, i, i, i, glenum, glenum, i>>(),
        K::fn<"swap", &I::swap, "osg::Image &">(),
        K::overload<"scaleImage", m<"scaleImage", pick<void (I::*)(int, int, int)>(&I::scaleImage), i, i, i>,
                    m<"scaleImage", pick<void (I::*)(int, int, int, GLenum)>(&I::scaleImage), i, i, i, glenum>>(),
        K::fn<"copySubImage", &I::copySubImage, i, i, i, "osg::Image const *">(),
        K::fn<"setOrigin", &I::setOrigin, "osg::Image::Origin">(),
        K::fn<"getOrigin", &I::getOrigin>(),
        K::fn<"s", &I::s>(),
        K::fn<"t", &I::t>(),
        K::fn<"r", &I::r>(),
        K::fn<"setRowLength", &I::setRowLength, i>(),
        K::fn<"getRowLength", &I::getRowLength>(),
        K::fn<"setInternalTextureFormat", &I::setInternalTextureFormat, "GLint">(),
        K::fn<"getInternalTextureFormat", &I::getInternalTextureFormat>(),
        K::fn<"setPixelFormat", &I::setPixelFormat, glenum>(),
        K::fn<"getPixelFormat", gl<&I::getPixelFormat>>(),
        K::fn<"setDataType", &I::setDataType, glenum>(),
        K::fn<"getDataType", gl<&I::getDataType>>(),
        K::fn<"setPacking", &I::setPacking, ui>(),
        K::fn<"getPacking", &I::getPacking>(),
        K::fn<"isCompressed", &I::isCompressed>(),
        K::fn<"setPixelAspectRatio", &I::setPixelAspectRatio, "float">(),
        K::fn<"getPixelAspectRatio", &I::getPixelAspectRatio>(),
        K::fn<"getPixelSizeInBits", &I::getPixelSizeInBits>(),
        K::fn<"getRowSizeInBytes", &I::getRowSizeInBytes>(),
        K::fn<"getRowStepInBytes", &I::getRowStepInBytes>(),
        K::fn<"getImageSizeInBytes", &I::getImageSizeInBytes>(),
        K::fn<"getImageStepInBytes", &I::getImageStepInBytes>(),
        K::fn<"getTotalSizeInBytes", &I::getTotalSizeInBytes>(),
        K::fn<"getTotalSizeInBytesIncludingMipmaps", &I::getTotalSizeInBytesIncludingMipmaps>(),
        K::fn<"valid", &I::valid>(),
        K::fn<"isDataContiguous", &I::isDataContiguous>(),
        K::overload<"getColor", K::forms<"getColor", get_color, 1, List<const I *, unsigned, unsigned, unsigned>, ui, ui, ui>,
                    m<"getColor", pick<V4 (I::*)(const osg::Vec2 &) const>(&I::getColor), "osg::Vec2 const &">,
                    m<"getColor", pick<V4 (I::*)(const osg::Vec3 &) const>(&I::getColor), "osg::Vec3 const &">>(),
        K::overload<"setColor",
                    K::forms<"setColor", set_color, 2, List<I *, const V4 &, unsigned, unsigned, unsigned>, vec4, ui, ui, ui>,
                    m<"setColor", pick<void (I::*)(const V4 &, const osg::Vec2 &)>(&I::setColor), vec4, "osg::Vec2 const &">,
                    m<"setColor", pick<void (I::*)(const V4 &, const osg::Vec3 &)>(&I::setColor), vec4, "osg::Vec3 const &">>(),
        K::fn<"flipHorizontal", &I::flipHorizontal>(),
        K::fn<"flipVertical", &I::flipVertical>(),
        K::fn<"flipDepth", &I::flipDepth>(),
        K::fn<"ensureValidSizeForTexturing", &I::ensureValidSizeForTexturing, "GLint">(),
        K::static_fn<"isPackedType", &I::isPackedType, glenum>(),
        K::static_fn<"computePixelFormat", gl<&I::computePixelFormat>, glenum>(),
        K::static_fn<"computeFormatDataType", gl<&I::computeFormatDataType>, glenum>(),
        K::static_fn<"computeBlockSize", &I::computeBlockSize, glenum, glenum>(),
        K::static_fn<"computeNumComponents", &I::computeNumComponents, glenum>(),
        K::static_fn<"computePixelSizeInBits", &I::computePixelSizeInBits, glenum, glenum>(),
        K::static_fn<"computeRowWidthInBytes", &I::computeRowWidthInBytes, i, glenum, glenum, i>(),
        K::overload<"computeImageSizeInBytes",
                    sm<"computeImageSizeInBytes", image_size<int, int, int, GLenum, GLenum, int, int, int>, i, i, i, glenum,
                       glenum, i, i, i>,
                    sm<"computeImageSizeInBytes", image_size<int, int, int, GLenum, GLenum, int, int>, i, i, i, glenum, glenum,
                       i, i>,
                    sm<"computeImageSizeInBytes", image_size<int, int, int, GLenum, GLenum, int>, i, i, i, glenum, glenum, i>,
                    sm<"computeImageSizeInBytes", image_size<int, int, int, GLenum, GLenum>, i, i, i, glenum, glenum>>(),
        K::static_fn<"roudUpToMultiple", &I::roudUpToMultiple, i, i>(),
        K::overload<"computeNearestPowerOfTwo", sm<"computeNearestPowerOfTwo", power_of_two<int, float>, i, "float">,
                    sm<"computeNearestPowerOfTwo", power_of_two<int>, i>>(),
        K::overload<"computeNumberOfMipmapLevels", sm<"computeNumberOfMipmapLevels", mipmap_levels<int, int, int>, i, i, i>,
                    sm<"computeNumberOfMipmapLevels", mipmap_levels<int, int>, i, i>,
                    sm<"computeNumberOfMipmapLevels", mipmap_levels<int>, i>>(),
        K::fn<"isMipmap", &I::isMipmap>(),
        K::fn<"getNumMipmapLevels", &I::getNumMipmapLevels>(),
        K::fn<"getMipmapOffset", &I::getMipmapOffset, ui>(),
        K::fn<"supportsTextureSubloading", &I::supportsTextureSubloading>(),
        K::fn<"isImageTranslucent", &I::isImageTranslucent>(),
        K::fn<"requiresUpdateCall", &I::requiresUpdateCall>(),
        // osg::BufferData has no table of its own: the modification count a texture watches is
        // reached through the image.
        K::fn<"dirty", [](I *self) { self->dirty(); }>(),
        K::fn<"getModifiedCount", [](const I *self) { return self->getModifiedCount(); }>(),
        K::fn<"setModifiedCount", [](I *self, unsigned int n) { self->setModifiedCount(n); }, ui>(),
    });
    K::hooks(t);
    c.insert(c.end(), {
        constant("Image_NO_PREFERENCE", I::NO_PREFERENCE), constant("Image_STORE_INLINE", I::STORE_INLINE),
        constant("Image_EXTERNAL_FILE", I::EXTERNAL_FILE), constant("Image_NO_DELETE", I::NO_DELETE),
        constant("Image_USE_NEW_DELETE", I::USE_NEW_DELETE), constant("Image_USE_MALLOC_FREE", I::USE_MALLOC_FREE),
        constant("Image_BOTTOM_LEFT", I::BOTTOM_LEFT), constant("Image_TOP_LEFT", I::TOP_LEFT),
        // The pixel formats and data types allocateImage and the layout arithmetic take.
        constant("GL_ALPHA", GL_ALPHA), constant("GL_LUMINANCE", GL_LUMINANCE),
        constant("GL_LUMINANCE_ALPHA", GL_LUMINANCE_ALPHA), constant("GL_RED", GL_RED), constant("GL_RG", GL_RG),
        constant("GL_RGB", GL_RGB), constant("GL_RGBA", GL_RGBA), constant("GL_BGR", GL_BGR),
        constant("GL_BGRA", GL_BGRA), constant("GL_DEPTH_COMPONENT", GL_DEPTH_COMPONENT),
        constant("GL_BYTE", GL_BYTE), constant("GL_UNSIGNED_BYTE", GL_UNSIGNED_BYTE), constant("GL_SHORT", GL_SHORT),
        constant("GL_UNSIGNED_SHORT", GL_UNSIGNED_SHORT), constant("GL_INT", GL_INT),
        constant("GL_UNSIGNED_INT", GL_UNSIGNED_INT), constant("GL_FLOAT", GL_FLOAT), constant("GL_HALF_FLOAT", GL_HALF_FLOAT),
        constant("GL_DOUBLE", GL_DOUBLE),
    });
}
