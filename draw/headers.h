// The OpenSceneGraph headers of _osgdraw's classes.
#pragma once
#include <osg/Array>
#include <osg/BoundingBox>
#include <osg/CopyOp>
#include <osg/Drawable>
#include <osg/Geometry>
#include <osg/Image>
#include <osg/Light>
#include <osg/LightSource>
#include <osg/Material>
#include <osg/Matrixd>
#include <osg/Matrixf>
#include <osg/PrimitiveSet>
#include <osg/Quat>
#include <osg/Shape>
#include <osg/ShapeDrawable>
#include <osg/StateSet>
