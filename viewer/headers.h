// The OpenSceneGraph headers of _osgViewer's classes.
#pragma once
#include <osg/Camera>
#include <osg/GraphicsContext>
#include <osg/Image>
#include <osg/View>
#include <osgGA/CameraManipulator>
#include <osgGA/OrbitManipulator>
#include <osgGA/StandardManipulator>
#include <osgGA/TrackballManipulator>
#include <osgViewer/View>
#include <osgViewer/Viewer>
#include <osgViewer/ViewerBase>
